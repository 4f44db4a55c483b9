#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

#include <functional>

class QBoxLayout;
class QCheckBox;
class QVBoxLayout;

namespace settings {

/// Tab 2: the general switches of the page and of the program.
class OngletGeneral : public Onglet
{
    Q_OBJECT

public:
    OngletGeneral(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 2; }
    QString Titre() const override { return QStringLiteral("Options générales"); }
    void Lit(SaisieOptions& saisie) const override;
    void Adapte(QSize fenetre) override;

private:
    struct Case
    {
        const char* Nom;
        const char* Legende;
        quint8 Options::*Variable;
        std::function<void(bool)> Action; ///< of a click; empty when the box is read at `CmdOK` only
    };

    QVBoxLayout* Groupe(const char* nom, const char* titre, QWidget* carte);
    QCheckBox* AjouteCase(QVBoxLayout* groupe, const Case& donnees);
    Case DeLaPage(const char* nom, const char* legende, quint8 Options::*variable);
    void RemplitPage(QVBoxLayout* groupe);
    void RemplitProgramme(QVBoxLayout* groupe);
    QWidget* CarteDuFormat();
    void ChoisitFormat(int membre, bool coche);
    void MontreIcone(bool oui);

    application::Contexte& contexte_;
    QCheckBox* ChkF_[2] = {};
    QCheckBox* ChkMI_ = nullptr;
    QCheckBox* ChkML_ = nullptr;
    QBoxLayout* colonnes_ = nullptr;
    int largeurEntiere_ = 0; ///< pixels that both columns take
};

} // namespace settings
