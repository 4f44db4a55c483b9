#pragma once

#include "application/windows/Fenetres.h"
#include "application/windows/Style.h"
#include "medication/windows/FrmMedoc.h"
#include "storage/Schema.h"
#include "support/BaseDeTest.h"
#include "support/Monde.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

namespace support {

/// The picker in a world of three medications, and the gestures of a doctor on it.
class PosteMedoc
{
protected:
    std::unique_ptr<Monde> monde_;
    std::unique_ptr<application::Fenetres> fenetres_;
    medication::FrmMedoc* fenetre_ = nullptr;

    template <typename T> T* Trouve(const char* nom) const
    {
        auto* controle = fenetre_->findChild<T*>(QLatin1String(nom));
        [&] { QVERIFY2(controle, nom); }();
        return controle;
    }
    QString Texte(const char* nom) const { return Trouve<QLineEdit>(nom)->text(); }
    QString Poso() const { return Trouve<QPlainTextEdit>("TxtPoso")->toPlainText(); }
    void Clic(const char* nom) const { QTest::mouseClick(Trouve<QWidget>(nom), Qt::LeftButton); }
    void ClicNoeud(int rang, bool ferme = true) const
    {
        auto* arbre = Trouve<QTreeView>("TV");
        const QPoint point = arbre->visualRect(arbre->model()->index(rang, 0)).center();
        QTest::mouseClick(arbre->viewport(), Qt::LeftButton, {}, point);
        if (!ferme) {
            QTest::mouseDClick(arbre->viewport(), Qt::LeftButton, {}, point);
        }
    }
    QPoint CentreLigne(const char* liste, int rang) const
    {
        auto* vue = Trouve<QListView>(liste);
        return vue->visualRect(vue->model()->index(rang, 0)).center();
    }
    void PresseLigne(const char* liste, int rang) const
    {
        QTest::mouseClick(Trouve<QListView>(liste)->viewport(), Qt::LeftButton, {}, CentreLigne(liste, rang));
    }
    void ReprendLigne(const char* liste, int rang) const
    {
        const QPoint point = CentreLigne(liste, rang);
        PresseLigne(liste, rang);
        QTest::mouseDClick(Trouve<QListView>(liste)->viewport(), Qt::LeftButton, {}, point);
    }
    void GlisseLigne(const char* liste, int rang, QWidget* vers, QPoint point) const
    {
        QWidget* source = Trouve<QListView>(liste)->viewport();
        const QPoint depart = CentreLigne(liste, rang);
        const QPoint arrivee = source->mapFromGlobal(vers->mapToGlobal(point));
        QTest::mousePress(source, Qt::LeftButton, {}, depart);
        QMouseEvent glisse(QEvent::MouseMove, arrivee, source->mapToGlobal(arrivee), Qt::NoButton,
                           Qt::LeftButton, {});
        QApplication::sendEvent(source, &glisse);
        QTest::mouseRelease(source, Qt::LeftButton, {}, arrivee);
    }
    QStringList Titres(const prescription::LignesZone& lignes) const
    {
        QStringList titres;
        for (const auto& ligne : lignes.Lignes()) {
            titres.append(prescription::TitreDeLigne(ligne.Texte));
        }
        return titres;
    }
    prescription::Ordonnance& Ordo() { return monde_->Etat.Ordonnance; }
    QString Focus() const
    {
        return fenetre_->focusWidget() ? fenetre_->focusWidget()->objectName() : QString();
    }

    /// `typeBase` other than "BIP" is the bank mode.
    void Prepare(const QString& typeBase = QStringLiteral("BIP"))
    {
        monde_ = std::make_unique<Monde>();
        monde_->Etat.Banque.TypeBase = typeBase;
        const QString travail = monde_->Etat.Chemins.CheminTravail;
        common::CreeDossier(travail);
        storage::CreeBase(common::Joint(travail, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        storage::Base& base = monde_->Etat.Bases.Medoc(travail);
        base.SupprimeOu(QStringLiteral("BddMed"), QStringLiteral("1 = 1"), {});
        const auto pose = [&](int num, const char16_t* nom, const QVariant& poso, const QVariant& notes) {
            AjouteLigne(base, QStringLiteral("BddMed"), {num, {}, {}, notes, poso, QString::fromUtf16(nom)});
        };
        pose(1, u"DOLIPRANE 1000 MG", QStringLiteral("1 comprimé matin* et soir"), QStringLiteral("à jeun"));
        pose(2, u"AMLOR 5 MG", {}, {});
        pose(3, u"METFORMINE 1000 MG", QStringLiteral("1 cp"), {});
        fenetres_ = std::make_unique<application::Fenetres>(monde_->Contexte);
        fenetre_ = &fenetres_->Donne<medication::FrmMedoc>();
        fenetre_->show();
    }
    void Range()
    {
        QVERIFY(monde_->Boites.Epuise());
        fenetres_.reset();
    }
};

} // namespace support
