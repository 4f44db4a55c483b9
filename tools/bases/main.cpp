#include "common/Fichiers.h"
#include "storage/Base.h"
#include "storage/Jeu.h"
#include "storage/Schema.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

using storage::ContenuInitial;
using storage::GenreBase;

/// The numbers below are left to what a practice brings along.
constexpr int kPremierNumero = 1001;

void RemplisBddMed(const QString& chemin, const QByteArray& noms)
{
    storage::Base base(chemin, GenreBase::Medoc);
    storage::Transaction transaction(base);
    int numero = kPremierNumero;
    for (const QByteArray& nom : noms.split('\n')) {
        if (!nom.trimmed().isEmpty()) {
            base.Execute(QStringLiteral("insert into BddMed (num, Nom) values (?, ?)"),
                         {numero++, QString::fromUtf8(nom.trimmed())});
        }
    }
    transaction.Valide();
}

/// The shared database is filled beside its place and put there when it is whole.
void FabriqueMedoc(const QString& dossier, const QString& medicaments)
{
    const QString ebauche = common::Joint(dossier, QStringLiteral("Medoc.ebauche"));
    storage::CreeBase(ebauche, GenreBase::Medoc);
    RemplisBddMed(ebauche, common::LitFichier(medicaments));
    common::DeplaceFichier(ebauche, common::Joint(dossier, QStringLiteral("Medoc.mdb")));
}

void Fabrique(const QString& dossier, const QString& medicaments)
{
    const QString modeles = common::Joint(dossier, QStringLiteral("BasesInstal"));
    common::CreeDossier(modeles);
    FabriqueMedoc(dossier, medicaments);
    storage::CreeBase(common::Joint(dossier, QStringLiteral("Ordo.mdb")), GenreBase::Ordo);
    storage::CreeBase(common::Joint(modeles, QStringLiteral("Ordo.mdb")), GenreBase::Ordo);
    storage::CreeBase(common::Joint(modeles, QStringLiteral("Copie de Ordo.mdb")), GenreBase::Ordo,
                      ContenuInitial::Aucun);
    storage::CreeBase(common::Joint(modeles, QStringLiteral("Copie de Medoc.mdb")), GenreBase::Medoc,
                      ContenuInitial::Aucun);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("fabrique_bases DIRECTORY MEDICATIONS\n", stderr);
        return 2;
    }
    try {
        Fabrique(arguments[1], arguments[2]);
    } catch (const std::exception& erreur) {
        std::fprintf(stderr, "%s\n", erreur.what());
        return 1;
    }
    return 0;
}
