#pragma once

class QPainter;

/// A kestrel seen from above, flying up the y axis: wings 100 units from tip to tip, about the origin.
/// Small pictures leave out the finer marks.
void paintKestrel(QPainter& painter, bool fineMarks);

/// An open book seen from before, 100 units wide, its spine's foot at the origin.
void paintOpenBook(QPainter& painter, bool fineMarks);
