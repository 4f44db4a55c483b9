#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace settings {

class MotDesCopies;
class Pastille;

/// Tab 7: the word printed on the copies, its look and its place.
class OngletDuplicata : public Onglet
{
    Q_OBJECT

public:
    OngletDuplicata(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 7; }
    QString Titre() const override { return QStringLiteral("Duplicata"); }
    void Lit(SaisieOptions& saisie) const override;
    void Adapte(QSize fenetre) override;

private:
    QWidget* CarteDuMot();
    QLayout* RangeeDesBoutons(QWidget* carte);
    QWidget* CarteDeLaPlace();
    void Charge();
    void Inscrit(bool oui);
    void ChoisitTexte();
    void ChoisitPolice();
    void ChoisitCouleur();
    void MontrePolice(const page::Police& police);
    void MontreCouleur(page::Couleur couleur);

    application::Contexte& contexte_;
    QCheckBox* ChkDup_ = nullptr;
    MotDesCopies* LblDup_ = nullptr;
    QPushButton* CmdTexte_ = nullptr;
    QPushButton* CmdPolice_ = nullptr;
    QPushButton* CmdColPol_ = nullptr;
    QLabel* LblPolice_ = nullptr;
    Pastille* LblColor_ = nullptr;
    QLineEdit* TxtDupX_ = nullptr;
    QLineEdit* TxtDupY_ = nullptr;
};

} // namespace settings
