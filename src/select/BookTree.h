#pragma once

class QTreeWidget;

/// Fills the tree of the whole Bible: testaments, groups and books, 76 nodes; the root and both testaments
/// expanded, "Old Testament" selected.
void fillBookTree(QTreeWidget& tree);
