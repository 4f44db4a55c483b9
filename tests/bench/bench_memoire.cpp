// Loading a prescription of 20 lines where a practice has memorised 50 000, against the bare indexed query of
// the engine on the same file.
#include "Rapport.h"
#include "patients/Patient.h"
#include "prescription/ChoixMemo.h"
#include "prescription/OrdosMemorisees.h"
#include "support/Monde.h"

#include <sqlite3.h>
#include <stdexcept>

namespace {

constexpr int kMemorisees = 50000;
constexpr int kLignes = 20;

/// Every tenth stands for all patients, the others for one of 5 000; titles are shared by ten.
prescription::CleMemo Cle(int rang)
{
    const QString titre = QStringLiteral("Traitement %1").arg(rang / 10);
    return rang % 10 == 0
               ? prescription::CleMemo{titre}
               : prescription::CleMemo{titre, QStringLiteral("Monsieur  PATIENT%1  Paul").arg(rang % 5000),
                                       QStringLiteral("20/03/1953")};
}

QString Titre(int ligne)
{
    return QStringLiteral("DOLIPRANE %1 MG COMPRIMÉ").arg(100 * (ligne + 1));
}

struct Cabinet : support::Monde
{
    Cabinet()
    {
        common::CreeDossier(Etat.Chemins.CheminTravail);
        storage::CreeBase(CheminMedoc(), storage::GenreBase::Medoc);
        QList<prescription::LigneMemorisee> lignes;
        for (int ligne = 0; ligne < kLignes; ++ligne) {
            lignes.append({Titre(ligne), QStringLiteral("1 comprimé matin* et soir pendant 30 jours"),
                           1 + ligne / 10, 1});
        }
        storage::Transaction transaction(Medoc());
        for (int rang = 0; rang < kMemorisees; ++rang) {
            prescription::AjouteMemorisee(Medoc(), {Cle(rang), 1}, lignes);
        }
        transaction.Valide();
    }
    QString CheminMedoc() const
    {
        return common::Joint(Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb"));
    }
    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }
};

Cabinet& LeCabinet()
{
    static Cabinet cabinet;
    return cabinet;
}

/// What the engine alone gives, with a statement that stays prepared.
class Etalon
{
public:
    Etalon(const QString& chemin, const char* instruction)
    {
        if (sqlite3_open_v2(chemin.toUtf8().constData(), &base_, SQLITE_OPEN_READONLY, nullptr) !=
                SQLITE_OK ||
            sqlite3_prepare_v2(base_, instruction, -1, &requete_, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(base_));
        }
    }
    ~Etalon()
    {
        sqlite3_finalize(requete_);
        sqlite3_close(base_);
    }
    Etalon(const Etalon&) = delete;
    Etalon& operator=(const Etalon&) = delete;

    using Rangee = std::array<std::string, 5>;

    std::vector<Rangee> Lit(const std::vector<std::string>& valeurs)
    {
        for (size_t i = 0; i < valeurs.size(); ++i) {
            sqlite3_bind_text(requete_, static_cast<int>(i) + 1, valeurs[i].c_str(), -1, SQLITE_STATIC);
        }
        std::vector<Rangee> rangees;
        while (sqlite3_step(requete_) == SQLITE_ROW) {
            Rangee& rangee = rangees.emplace_back();
            for (int colonne = 0; colonne < sqlite3_column_count(requete_); ++colonne) {
                const auto* texte = reinterpret_cast<const char*>(sqlite3_column_text(requete_, colonne));
                rangee[static_cast<size_t>(colonne)] = texte ? texte : "";
            }
        }
        sqlite3_reset(requete_);
        return rangees;
    }

private:
    sqlite3* base_ = nullptr;
    sqlite3_stmt* requete_ = nullptr;
};

void Verifie(benchmark::State& state, qsizetype lu, qsizetype attendu)
{
    if (lu != attendu) {
        state.SkipWithError("rows are missing");
    }
}

/// From the row chosen to the lines in both zones.
void ChargeParmi50000(benchmark::State& state)
{
    Cabinet& cabinet = LeCabinet();
    prescription::Ordonnance& ordonnance = cabinet.Etat.Ordonnance;
    Etalon etalon(cabinet.CheminMedoc(),
                  "select TitreLigne, Posologie, Zone, IdProduit, Converti from OrdoEnr "
                  "where Titre = ? and Patient = ? and Datenais = ? order by rowid");
    const prescription::CleMemo cle = Cle(24999);
    const std::vector<std::string> valeurs = {cle.Titre.toStdString(), cle.NomPatient.toStdString(),
                                              cle.Datenais.toStdString()};
    bench::Compare(
        state,
        [&] {
            ordonnance.OrdoZone1.clear();
            ordonnance.OrdoZone2.clear();
            ordonnance.LstChoix1.Efface();
            ordonnance.LstChoix2.Efface();
            ordonnance.CleMemo = cle;
            prescription::ChargeMemo(cabinet.Contexte, 1);
            Verifie(state, ordonnance.OrdoZone1.size() + ordonnance.OrdoZone2.size(), kLignes);
        },
        [&] { Verifie(state, static_cast<qsizetype>(etalon.Lit(valeurs).size()), kLignes); });
}
BENCHMARK(ChargeParmi50000)->UseManualTime()->Unit(benchmark::kMillisecond);

void LitParmi50000(benchmark::State& state)
{
    Cabinet& cabinet = LeCabinet();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(prescription::LitMemorisee(cabinet.Medoc(), Cle(24999)));
    }
}
BENCHMARK(LitParmi50000);

/// The titles of a patient: 5 000 for all and his own.
void ListeParmi50000(benchmark::State& state)
{
    Cabinet& cabinet = LeCabinet();
    patients::Patient patient;
    patient.PatientCourant = Cle(24999).NomPatient;
    patient.DateNaissance = Cle(24999).Datenais;
    Etalon etalon(cabinet.CheminMedoc(),
                  "select Titre, NomPatient, ALD, Datenais from ListeOrdos "
                  "where NomPatient = ? and Datenais = ? or NomPatient = '*' order by rowid");
    const std::vector<std::string> valeurs = {patient.PatientCourant.toStdString(),
                                              patient.DateNaissance.toStdString()};
    const auto attendu = static_cast<qsizetype>(etalon.Lit(valeurs).size());
    bench::Compare(
        state,
        [&] { Verifie(state, prescription::ListeMemorisees(cabinet.Medoc(), patient).size(), attendu); },
        [&] { benchmark::DoNotOptimize(etalon.Lit(valeurs)); });
    state.counters["titres"] = static_cast<double>(attendu);
}
BENCHMARK(ListeParmi50000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
