#pragma once

#include "scenario/Commande.h"
#include "scenario/Monde.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>

namespace scenario {

/// Plays one file in a process of its own and ends it after its time, so that a crash or an endless loop of
/// the program under test costs no more than that file.
class Execution : public QObject
{
    Q_OBJECT

public:
    Execution(const Commande& commande, QString fichier);

    void Demarre();
    const QString& Fichier() const { return fichier_; }
    /// The lines for the reader.
    const QByteArray& Sortie() const { return sortie_; }
    int Reussites() const { return reussites_; }
    int Echecs() const { return echecs_; }

Q_SIGNALS:
    void Finie();

private:
    QString PrepareMonde();
    QStringList Arguments(const Monde& monde) const;
    void Recoit();
    void RecoitLigne(const QByteArray& ligne);
    void Fin();
    void Echoue(const QString& phrase);

    Commande commande_;
    QString fichier_;
    QProcess processus_;
    std::unique_ptr<QTemporaryDir> temporaire_;
    QByteArray sortie_;
    int ligne_ = 0;
    int reussites_ = 0;
    int echecs_ = 0;
    bool complete_ = false;
    bool tropLongue_ = false;
};

/// Plays all the files of a command, prints what they give in the order of the command, and returns the
/// exit status: 0 when nothing failed.
int Surveille(const Commande& commande);

} // namespace scenario
