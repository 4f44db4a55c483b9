#include "certificates/SuiviMiseEnPage.h"

#include <QTextDocument>

namespace certificates {

SuiviMiseEnPage::SuiviMiseEnPage(QTextDocument& document, Lecture lit, Remise remet)
    : document_(document), lit_(std::move(lit)), remet_(std::move(remet))
{
    Note();
    connect(&document_, &QTextDocument::undoCommandAdded, this, &SuiviMiseEnPage::OublieLaSuite);
    connect(&document_, &QTextDocument::contentsChanged, this, &SuiviMiseEnPage::Suit);
}

int SuiviMiseEnPage::Pas() const
{
    return document_.availableUndoSteps();
}

void SuiviMiseEnPage::Change(const std::function<void()>& change)
{
    enChange_ = true;
    change();
    enChange_ = false;
    Note();
}

void SuiviMiseEnPage::Note()
{
    pas_ = Pas();
    notes_[pas_] = lit_();
}

/// A new step takes the place of what was undone.
void SuiviMiseEnPage::OublieLaSuite()
{
    notes_.erase(notes_.upperBound(pas_), notes_.end());
    pas_ = Pas();
}

/// A text set from outside leaves nothing to undo, and nothing that it could be undone to.
bool SuiviMiseEnPage::ToutOublie() const
{
    return Pas() < pas_ && !document_.isRedoAvailable();
}

void SuiviMiseEnPage::Suit()
{
    if (ToutOublie()) {
        notes_.clear();
        Note();
        return;
    }
    pas_ = Pas();
    if (enChange_) {
        return;
    }
    const auto suivante = notes_.upperBound(pas_);
    if (suivante == notes_.begin()) {
        return;
    }
    const MiseEnPage note = *std::prev(suivante);
    if (note != lit_()) {
        remet_(note);
    }
}

} // namespace certificates
