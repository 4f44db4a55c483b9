#include "medication/windows/ChampPosologie.h"

#include "application/windows/Style.h"
#include "medication/windows/ListeOffres.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTextCursor>

namespace medication {

ChampPosologie::ChampPosologie(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &ChampPosologie::SuitTexte);
}

void ChampPosologie::Remplace(const QString& texte)
{
    CacheOffres();
    if (toPlainText() == texte) {
        return;
    }
    QTextCursor curseur(document());
    curseur.select(QTextCursor::Document);
    curseur.insertText(texte);
    moveCursor(QTextCursor::End);
}

void ChampPosologie::MontreOffres()
{
    if (ecartees_ || !hasFocus() || liste_->model()->rowCount() == 0) {
        CacheOffres();
        return;
    }
    const int ensemble = liste_->isVisible() ? liste_->geometry().bottom() - geometry().top() + 1 : height();
    liste_->Ouvre(ensemble - minimumHeight() - application::style::kDansGroupe);
    ensureCursorVisible();
}

void ChampPosologie::CacheOffres()
{
    if (liste_) {
        liste_->hide();
    }
}

void ChampPosologie::SuitTexte()
{
    if (document()->isEmpty()) {
        ecartees_ = false;
    }
    if (tape_) {
        Q_EMIT Tape();
    } else {
        CacheOffres();
    }
}

bool ChampPosologie::ToucheDOffre(const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Escape:
        ecartees_ = true;
        CacheOffres();
        return true;
    case Qt::Key_Down:
        liste_->Deplace(1);
        return true;
    case Qt::Key_Up:
        if (liste_->Selection() < 0) {
            return false;
        }
        liste_->Deplace(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (liste_->Selection() < 0) {
            return false;
        }
        Q_EMIT liste_->Prise(liste_->Selection());
        return true;
    default:
        return false;
    }
}

void ChampPosologie::keyPressEvent(QKeyEvent* event)
{
    if (liste_ && liste_->isVisible() && ToucheDOffre(*event)) {
        return;
    }
    const QScopedValueRollback enTapant(tape_, true);
    QPlainTextEdit::keyPressEvent(event);
}

void ChampPosologie::inputMethodEvent(QInputMethodEvent* event)
{
    const QScopedValueRollback enTapant(tape_, true);
    QPlainTextEdit::inputMethodEvent(event);
}

void ChampPosologie::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT Entre();
}

void ChampPosologie::focusOutEvent(QFocusEvent* event)
{
    ecartees_ = false;
    CacheOffres();
    QPlainTextEdit::focusOutEvent(event);
}

} // namespace medication
