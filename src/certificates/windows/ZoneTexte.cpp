#include "certificates/windows/ZoneTexte.h"

#include <QKeyEvent>

namespace certificates {

namespace {

// A paragraph of the document ends in CR LF; the line separator within one stands for a lone line feed.
constexpr QChar kFinDeLigne = QChar::ParagraphSeparator;
constexpr QChar kSautSeul = QChar::LineSeparator;

} // namespace

ZoneTexte::ZoneTexte(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

QString ZoneTexte::Texte() const
{
    return document()->toRawText().replace(kFinDeLigne, QLatin1String("\r\n")).replace(kSautSeul, u'\n');
}

void ZoneTexte::Remplace(const QString& texte)
{
    QString paragraphes = texte;
    paragraphes.replace(QLatin1String("\r\n"), QString(kFinDeLigne));
    paragraphes.replace(u'\r', kFinDeLigne).replace(u'\n', kSautSeul);
    QTextCursor tout(document());
    tout.select(QTextCursor::Document);
    tout.insertText(paragraphes);
    moveCursor(QTextCursor::Start);
}

QString ZoneTexte::Selection() const
{
    return textCursor().selectedText().replace(kFinDeLigne, u'\n').replace(kSautSeul, u'\n');
}

void ZoneTexte::keyPressEvent(QKeyEvent* evenement)
{
    if (evenement->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(evenement);
}

} // namespace certificates
