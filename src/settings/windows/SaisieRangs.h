#pragma once

#include "settings/Entete.h"

#include <QWidget>

class QVBoxLayout;

namespace settings {

struct SaisieEntete;

/// The 24 rows of the letterhead in their groups, each a field in its own font. A row's indentation is typed
/// at its head and kept in `SaisieEntete`, as the row that has the focus.
class SaisieRangs : public QWidget
{
    Q_OBJECT

public:
    SaisieRangs(SaisieEntete& saisie, QWidget* parent);

    void Montre(const RangsEntete& rangs);
    RangsEntete Lit() const;
    const page::Police& Police(int rang) const;
    void PosePolice(int rang, const page::Police& police);
    /// The row's font in words.
    QString NomPolice(int rang) const;
    QWidget* Champ(int rang) const;

Q_SIGNALS:
    /// Text, font or indentation of a row changed.
    void Change();
    /// A row took the focus.
    void RangCourant(int rang);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* CarteAdresse();
    QWidget* CartePraticien();
    QWidget* CarteBasDePage();
    QWidget* CarteSignature();
    void CreeChamps();
    void NommeChamps();
    int RangDe(const QObject* objet) const;
    bool RecoitTouche(int rang, int touche);
    void SuitCurseur(int rang);
    void MontreRetrait(int rang);

    SaisieEntete& saisie_;
    std::array<QWidget*, storage::kLignesEntete> champs_ = {};
    std::array<page::Police, storage::kLignesEntete> polices_ = {};
};

} // namespace settings
