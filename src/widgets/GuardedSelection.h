#pragma once

#include "widgets/Modality.h"
#include <QAbstractItemView>
#include <QItemSelectionModel>

/// The selection of a list, which stays as it is behind a modal window: assistive programs select
/// lines there, too. Their interfaces are Qt's, which ask for no modal window.
class GuardedSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// Takes the place of the view's selection model.
    static void install(QAbstractItemView& view)
    {
        QItemSelectionModel* before = view.selectionModel();
        view.setSelectionModel(new GuardedSelection(view));
        delete before;
    }

    using QItemSelectionModel::select;
    void select(const QItemSelection& selection, SelectionFlags command) override
    {
        if (!isBehindModalWindow(m_view))
            QItemSelectionModel::select(selection, command);
    }
    void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override
    {
        if (!isBehindModalWindow(m_view))
            QItemSelectionModel::setCurrentIndex(index, command);
    }

private:
    explicit GuardedSelection(QAbstractItemView& view)
        : QItemSelectionModel(view.model(), &view)
        , m_view(view)
    {
    }

    const QAbstractItemView& m_view;
};
