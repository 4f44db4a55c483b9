#pragma once

#include <QListView>

namespace medication {

/// A list of prescription lines. It tells what the doctor does to a row by mouse, keys or its menu, and
/// changes nothing itself.
class ListeLignes : public QListView
{
    Q_OBJECT

public:
    explicit ListeLignes(QWidget* parent);

    /// The selected row, -1 for none.
    int Selection() const;
    /// Selects a row; -1 clears the selection.
    void Selectionne(int rang);

Q_SIGNALS:
    /// A press on that row, -1 beside the rows.
    void Presse(int rang);
    void Reprend();
    /// Up (-1) or down (+1) by one place.
    void Deplace(int sens);
    void Passe();
    /// The mouse moves with its left button held since a press on a row; the points are global.
    void Glisse(const QPoint& depart, const QPoint& point);
    void Lache(const QPoint& point);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool ToucheDeRangee(const QKeyEvent& event);

    QPoint depart_;
    bool tenu_ = false; // a row is held by the mouse
};

} // namespace medication
