#pragma once

#include <QLineEdit>

namespace patients {

/// A line of text that is wholly selected when it gets the focus, but not back from its own menu.
class ChampSelectionne : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* evenement) override;
};

} // namespace patients
