#pragma once

#include <QListView>

namespace medication {

/// The packs of the generic groups, in columns. A click or Enter takes a row; the row under the mouse is the
/// tool tip of the list.
class ListeGeneriques : public QListView
{
    Q_OBJECT

public:
    explicit ListeGeneriques(QWidget* parent);

    /// Takes the focus, with the first row that is not empty selected.
    void VaAuPremierPack();

Q_SIGNALS:
    void Prise(int rang);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace medication
