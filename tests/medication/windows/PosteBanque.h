#pragma once

#include "../BanqueFeinte.h"
#include "PosteMedoc.h"
#include "medication/windows/ImageAnimee.h"

#include <QPushButton>

namespace support {

/// The picker in the bank mode: two packs that interact, one of them with generics, and a personal entry.
class PosteBanque : protected PosteMedoc
{
protected:
    std::shared_ptr<BanqueFeinte> banque_;

    storage::Base& Medoc() { return monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail); }
    drugbank::Banque& Banque() { return monde_->Etat.Banque; }
    void PrepareBanque()
    {
        Prepare(QStringLiteral("TVS"));
        for (const auto* table : {"Biblio", "Vidal", "MedUtile"}) {
            Medoc().SupprimeOu(QLatin1String(table), QStringLiteral("1 = 1"), {});
        }
        AjouteLigne(Medoc(), QStringLiteral("Biblio"), {QStringLiteral("QSP 3 mois"), {}});
        banque_ = std::make_shared<BanqueFeinte>();
        banque_->Contenu = {
            {QStringLiteral("3400930000011"), 11, 101, 1.16F, QStringLiteral("DOLIPRANE 1 000 mg")},
            {QStringLiteral("3400930000012"), 12, 102, 0.F, QStringLiteral("DOLIRHUME")}};
        banque_->RangsGeneriques[101] = {QString(), QStringLiteral("  PARACETAMOL A") + QString(10, u' ') +
                                                        QStringLiteral("1.16  €")};
        banque_->Rapports[{101, 102}] = QStringLiteral("deux");
        Banque().Acces = banque_;
        fenetre_->hide();
        monde_->Etat.Choix.BaseChangee = 1;
        fenetre_->show();
    }
    void Cherche(const QString& texte) const
    {
        Trouve<QLineEdit>("TxtCherche")->setText(texte);
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
    }
    /// Adds the pack of that node to the first zone.
    void Prescrit(int rang) const
    {
        Cherche(QStringLiteral("DOLI"));
        ClicNoeud(rang);
        Clic("CmdAjouter1");
    }
    bool Joue(const char* nom) const { return Trouve<medication::ImageAnimee>(nom)->isVisible(); }
    /// Runs when the next modal window stands; it must close that window.
    template <typename Fait> void DansLaFenetre(Fait fait) const
    {
        QTimer::singleShot(0, fenetre_, [fait] {
            QWidget* ouverte = QApplication::activeModalWidget();
            QVERIFY(ouverte);
            fait(*ouverte);
        });
    }
};

} // namespace support
