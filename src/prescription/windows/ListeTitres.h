#pragma once

#include <QListView>

namespace prescription {

/// A list of memorised prescriptions. It tells what the doctor does to a row and changes nothing itself.
/// An empty one says so.
class ListeTitres : public QListView
{
    Q_OBJECT

public:
    ListeTitres(const QString& nom, const QString& vide, QWidget* parent);

    /// The selected row, -1 for none.
    int Selection() const;
    /// Selects a row; -1 clears the selection.
    void Selectionne(int rang);
    /// Whether a search narrows the list, which says so when nothing is left.
    void SuitRecherche(bool active) { cherchee_ = active; }

Q_SIGNALS:
    /// The left button on a row.
    void Presse();
    void DoubleClic();
    /// The right button, anywhere.
    void Ferme();
    /// The key that leads from the first row to what stands above.
    void Haut();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    /// The right button closes, the left one selects the row under it: true then.
    bool Clique(const QMouseEvent& event);

    QString vide_;
    bool cherchee_ = false;
};

} // namespace prescription
