#include "medication/windows/BoiteCboP.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace medication {

namespace {

constexpr int kRangeesVues = 12;
constexpr int kBordsLigne =
    6; // of the line edit and its caret, in pixels at 100 %, that QComboBox leaves out

} // namespace

BoiteCboP::BoiteCboP(const QStringList& textes, QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(kRangeesVues);
    addItems(textes);
    setCurrentIndex(-1);
    connect(lineEdit(), &QLineEdit::textEdited, this, &BoiteCboP::Suit);
    connect(this, &QComboBox::textActivated, this, &BoiteCboP::Change);
}

int BoiteCboP::RangDe(const QString& texte) const
{
    return findText(texte, Qt::MatchFixedString | Qt::MatchCaseSensitive);
}

void BoiteCboP::Montre(const QString& texte)
{
    const QSignalBlocker muet(this);
    if (texte.isEmpty()) {
        setCurrentIndex(-1);
    } else if (texte != currentText()) {
        setCurrentIndex(RangDe(texte));
        setEditText(texte);
    }
}

QSize BoiteCboP::sizeHint() const
{
    return QComboBox::sizeHint() + QSize(kBordsLigne, 0);
}

QSize BoiteCboP::minimumSizeHint() const
{
    return QComboBox::minimumSizeHint() + QSize(kBordsLigne, 0);
}

void BoiteCboP::Suit(const QString& texte)
{
    {
        // A text typed that the list holds is that row: leaving the box would choose it a second time.
        const QSignalBlocker muet(this);
        const int rang = RangDe(texte);
        if (rang >= 0) {
            setCurrentIndex(rang);
        }
    }
    Q_EMIT Change(texte);
}

void BoiteCboP::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo) && !lineEdit()->isUndoAvailable()) {
        Q_EMIT Defait();
        return;
    }
    if ((event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) &&
        event->modifiers() == Qt::NoModifier) {
        showPopup();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void BoiteCboP::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace medication
