#pragma once

#include <QLineEdit>

namespace medication {

/// The search box: letters typed become capitals, the mouse above it gives it the focus.
class ChampCherche : public QLineEdit
{
    Q_OBJECT

public:
    explicit ChampCherche(QWidget* parent);

Q_SIGNALS:
    void Presse();
    void Entree();
    /// The key that leads to the list below.
    void Bas();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

} // namespace medication
