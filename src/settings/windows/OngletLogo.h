#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

#include <QImage>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace settings {

class BoiteMillimetres;

/// Tab 6: the picture of the letterhead, its place and size.
class OngletLogo : public Onglet
{
    Q_OBJECT

public:
    OngletLogo(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 6; }
    QString Titre() const override { return QStringLiteral("Logo"); }
    void Lit(SaisieOptions& saisie) const override;
    void Adapte(QSize fenetre) override;

private:
    QWidget* CarteDeLImage();
    QWidget* CarteDesMesures();
    QLayout* RangeeDePosition(QWidget* carte);
    void Branche();
    void Charge();
    void Insere(bool oui);
    void ChoisitFichier();
    void MontreImage(const QImage& image);
    void MontreMesures(const QStringList& textes);
    void PermetMesures(bool oui);
    void SuitHauteur(const QString& texte);
    void SuitLargeur(const QString& texte);

    application::Contexte& contexte_;
    QCheckBox* ChkLog_ = nullptr;
    QRadioButton* OptG_ = nullptr;
    QRadioButton* OptD_ = nullptr;
    QPushButton* CmdChemin_ = nullptr;
    QLabel* Img_ = nullptr;
    BoiteMillimetres* TxtH_ = nullptr;
    BoiteMillimetres* TxtL_ = nullptr;
    BoiteMillimetres* TxtX_ = nullptr;
    BoiteMillimetres* TxtY_ = nullptr;
    QImage image_;
    QSize place_{1, 1}; ///< of the picture, in pixels
};

} // namespace settings
