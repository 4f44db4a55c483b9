#pragma once

#include <QPlainTextEdit>

namespace certificates {

/// `TxtCert`: a text box that keeps every line end and character of its text, and can undo what the program
/// puts in it.
class ZoneTexte : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ZoneTexte(QWidget* parent);

    /// The text with CR LF line ends; a lone line feed that was given stays one.
    QString Texte() const;
    /// Puts a text in the place of the whole, the caret at its beginning.
    void Remplace(const QString& texte);
    QString Selection() const;

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
};

} // namespace certificates
