#pragma once

#include <QLineEdit>

namespace medication {

/// The name of the medication chosen: F4 puts blanks behind it or takes them off, and the mouse above a
/// name gives it the focus.
class ChampMedicament : public QLineEdit
{
    Q_OBJECT

public:
    explicit ChampMedicament(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

} // namespace medication
