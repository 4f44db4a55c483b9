#pragma once

#include "certificates/Bandeaux.h"
#include "certificates/Modeles.h"
#include "certificates/Texte.h"
#include "certificates/messages.h"
#include "certificates/windows/FrmCertif.h"
#include "certificates/windows/ZoneTexte.h"
#include "prescription/Apercu.h"
#include "startup/windows/ProgrammeDeTest.h"
#include "support/Cabinet.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextBlock>

namespace support {

/// The editor over three templates, and the gestures of a doctor on it.
struct PosteCertif : Cabinet
{
    application::Fenetres Fenetres{Contexte};

    PosteCertif()
    {
        using namespace certificates;
        Certificat certificat;
        EcritModele(Travail(), QStringLiteral("Arrêt"), QStringLiteral("Je soussigné\r\n\r\n<DR>"),
                    certificat);
        certificat.DecalageCertif = 4;
        EcritModele(Travail(), QStringLiteral("Sport"), QStringLiteral("    Apte\r\n    <N>\r\n"),
                    certificat);
        certificat = {};
        certificat.CertifALD = 1;
        EcritModele(Travail(), QStringLiteral("Zones"), BandeauALD1(), certificat);
        F().show();
        F().activateWindow();
        QCoreApplication::processEvents();
    }

    certificates::FrmCertif& F() { return Fenetres.Donne<certificates::FrmCertif>(); }
    QString Travail() const { return Etat.Chemins.CheminTravail; }
    QString Fichier(const QString& nom) const
    {
        return common::Joint(certificates::CheminCertificats(Travail()), nom);
    }
    QByteArray Octets(const QString& nom) const { return common::LitFichier(Fichier(nom)); }
    template <typename T = QPushButton> T* C(const char* nom)
    {
        auto* controle = F().findChild<T*>(QLatin1String(nom));
        [&] { QVERIFY2(controle, nom); }();
        return controle;
    }
    certificates::ZoneTexte* Zone() { return C<certificates::ZoneTexte>("TxtCert"); }
    QString Texte() { return Zone()->Texte(); }
    QListView* Liste() { return C<QListView>("LstCertif"); }
    QPoint Place(int rang) { return Liste()->visualRect(Liste()->model()->index(rang, 0)).center(); }
    void Choisit(int rang) { QTest::mouseClick(Liste()->viewport(), Qt::LeftButton, {}, Place(rang)); }
    void Clic(const char* nom) { C<QAbstractButton>(nom)->click(); }
    void Tape(const QString& texte) { Zone()->insertPlainText(texte); }
    int Rang()
    {
        const auto choisis = Liste()->selectionModel()->selectedRows();
        return choisis.isEmpty() ? -1 : choisis.front().row();
    }
    /// The enabled ones of the five buttons that change.
    QString Actifs()
    {
        QStringList noms;
        for (const char* nom : {"CmdAnnule", "CmdDecG", "CmdDecD", "CmdEnr", "CmdEcrire"}) {
            if (C(nom)->isEnabled()) {
                noms += QLatin1String(nom);
            }
        }
        return noms.join(u' ');
    }
    certificates::Certificat& Certif() { return Etat.Certificat; }
};

} // namespace support
