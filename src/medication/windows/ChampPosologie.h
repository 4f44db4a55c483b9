#pragma once

#include <QPlainTextEdit>

namespace medication {

class ListeOffres;

/// A box for a posology. With a list of offers: Down and Up walk in it and Enter takes the row they chose,
/// Escape closes it until the box is left or emptied. Without a chosen row Enter is a line feed.
class ChampPosologie : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ChampPosologie(QWidget* parent);

    /// Replaces the whole text in one step that the doctor can undo. Closes the list.
    void Remplace(const QString& texte);

    void PoseOffres(ListeOffres* liste) { liste_ = liste; }
    /// Shows the list, which stands below in the same layout, when it has rows.
    void MontreOffres();

Q_SIGNALS:
    /// The box takes the focus.
    void Entre();
    /// The doctor changed the text with a key.
    void Tape();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void SuitTexte();
    void CacheOffres();
    bool ToucheDOffre(const QKeyEvent& event);

    ListeOffres* liste_ = nullptr;
    bool tape_ = false;     // a key is changing the text
    bool ecartees_ = false; // the offers were closed by Escape
};

} // namespace medication
