#pragma once

#include "outside/DemarrageSysteme.h"
#include "outside/Horloge.h"
#include "outside/Imprimantes.h"
#include "outside/Lanceur.h"
#include "outside/Plateau.h"

#include <QPointer>
#include <algorithm>

/// The outer edge for tests: everything that leaves the program is kept to be looked at.
namespace support {

/// Stands still, on 20/11/2026 unless told otherwise. What is to run later waits until a test lets time pass.
struct HorlogeFixe : outside::Horloge
{
    struct Attente
    {
        qint64 Echeance;
        QPointer<QObject> Contexte;
        std::function<void()> Suite;
    };

    QDateTime Instant{QDate(2026, 11, 20), QTime(10, 0)};
    QList<Attente> Attentes;
    qint64 Ecoule = 0; ///< milliseconds that have passed

    QDateTime Maintenant() const override { return Instant; }
    void Dans(int ms, QObject* contexte, std::function<void()> suite) override
    {
        Attentes.append({Ecoule + ms, contexte, std::move(suite)});
    }

    /// Lets that many milliseconds pass: what falls due runs in its order, what it asks for besides too.
    void Passe(int ms)
    {
        const qint64 fin = Ecoule + ms;
        while (true) {
            const auto prochaine = std::ranges::min_element(Attentes, {}, &Attente::Echeance);
            if (prochaine == Attentes.end() || prochaine->Echeance > fin) {
                break;
            }
            Ecoule = prochaine->Echeance;
            const Attente due = Attentes.takeAt(prochaine - Attentes.begin());
            if (due.Contexte) {
                due.Suite();
            }
        }
        Ecoule = fin;
    }
};

struct ImprimantesFeintes : outside::Imprimantes
{
    struct Tirage
    {
        QString Imprimante;
        outside::Travail Travail;
    };

    QStringList Presentes{QStringLiteral("Bureau")};
    QList<Tirage> Travaux;
    QList<outside::Travail> Abandons;

    QStringList Noms() const override { return Presentes + QStringList{outside::NomFichierPdf()}; }
    QString ParDefaut() const override { return Noms().constFirst(); }
    void Imprime(const QString& nom, const outside::Travail& travail) override
    {
        Travaux.append({nom, travail});
    }
    void Abandonne(const outside::Travail& travail) override { Abandons.append(travail); }
};

struct PlateauFeint : outside::Plateau
{
    bool Existe = true;
    QString Bulle; ///< empty while there is no icon
    std::function<void(Clic)> Receveur;

    bool Present() const override { return Existe; }
    void Ajoute(const QString& bulle) override { Bulle = bulle; }
    void Retire() override { Bulle.clear(); }
    void Ecoute(std::function<void(Clic)> receveur) override { Receveur = std::move(receveur); }
};

struct DemarrageSystemeFeint : outside::DemarrageSysteme
{
    QString Programme; ///< empty while nothing is registered

    void Active(const QString& programme) override { Programme = programme; }
    void Desactive() override { Programme.clear(); }
};

struct LanceurFeint : outside::Lanceur
{
    QList<QStringList> Relances; ///< program, then arguments
    QStringList Documents;
    bool Reussit = true;

    bool Lance(const QString& programme, const QStringList& arguments = {}) override
    {
        Relances.append(QStringList{programme} + arguments);
        return Reussit;
    }
    bool Ouvre(const QString& documentOuAdresse) override
    {
        Documents.append(documentOuAdresse);
        return Reussit;
    }
};

} // namespace support
