#pragma once

#include <QListView>

namespace patients {

/// A list of one choice at most. The focus alone chooses nothing, and the first arrow key the first row;
/// no gesture takes a choice away, only another one replaces it. A text too long for its row ends in "…"
/// and stands whole in a tool tip.
class ListeChoix : public QListView
{
    Q_OBJECT

public:
    explicit ListeChoix(QWidget* parent);

    /// A blank chooses nothing: every entry of a list may begin with one.
    void keyboardSearch(const QString& texte) override;

protected:
    void focusInEvent(QFocusEvent* evenement) override;
    bool viewportEvent(QEvent* evenement) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* evenement) const override;
};

} // namespace patients
