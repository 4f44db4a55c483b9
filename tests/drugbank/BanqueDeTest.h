#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace support {

/// A drug bank in a program directory: real helper and bank libraries that answer from a description, and a
/// log of their calls that outlives them.
class BanqueDeTest
{
public:
    /// `dossier`: the program directory, which must stand. Nothing is put there yet.
    explicit BanqueDeTest(const QString& dossier) : dossier_(dossier) {}

    /// Puts the libraries there. A bank that is in use stays as it was: each description comes with a library
    /// of its own, which the helper names from now on. Fields: see tests/scenario/README.md; `reponses` of
    /// `essai::BanqueEssai` besides. False when a file cannot be written.
    bool Pose(const QJsonObject& description);

    /// The calls so far, each `{nom, arguments}`; null stands for a place to write to.
    QJsonArray Appels() const;
    /// The records and lists that were handed out and not released, each `{poignee, appel}`.
    QJsonArray Fuites() const;
    /// The names of the calls that begin so, in order.
    QStringList Noms(const QString& debut = {}) const;

    /// Where the library of the last description stands.
    QString CheminBanque() const { return banque_; }
    QString CheminAide() const;

private:
    QList<QJsonObject> Lignes() const;
    QString CheminJournal() const;
    bool PoseAide(const QJsonObject& description) const;
    bool PoseBanque(const QJsonObject& description) const;

    QString dossier_;
    QString banque_;
};

} // namespace support
