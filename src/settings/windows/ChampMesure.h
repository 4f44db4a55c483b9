#pragma once

#include <QLineEdit>

namespace settings {

/// A line of text that is wholly selected when it gets the focus, with the mouse too, and that tells when
/// the doctor enters and leaves it. Its own menu, a box or another program is no leaving.
class ChampMesure : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

Q_SIGNALS:
    void Pris();
    void Quitte();

protected:
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;

private:
    bool prisALaSouris_ = false; ///< by the press under way, which would take the selection away
};

} // namespace settings
