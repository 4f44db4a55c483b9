#include "scenario/Surveillance.h"

#include "scenario/Echec.h"
#include "scenario/Rapport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTimer>
#include <cstdio>

namespace scenario {

namespace {

void Imprime(const QByteArray& texte)
{
    std::fwrite(texte.constData(), 1, static_cast<size_t>(texte.size()), stdout);
    std::fflush(stdout);
}

/// What the program under test finds around it: a French desktop without a screen.
QProcessEnvironment Environnement(const Monde& monde)
{
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(QStringLiteral("HOME"), monde.Maison());
    for (const auto& nom : {QStringLiteral("CONFIG"), QStringLiteral("DATA"), QStringLiteral("CACHE"),
                            QStringLiteral("STATE")}) {
        environnement.insert(QStringLiteral("XDG_%1_HOME").arg(nom),
                             monde.Maison() + QLatin1Char('/') + nom.toLower());
    }
    environnement.insert(QStringLiteral("XDG_RUNTIME_DIR"), monde.Maison());
    environnement.insert(QStringLiteral("QT_NO_GLIB"), QStringLiteral("1"));
    environnement.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("96"));
    environnement.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environnement.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Paris"));
    return environnement;
}

/// Prints what every file gave, and the sums. The exit status.
int Resume(const std::vector<std::unique_ptr<Execution>>& executions)
{
    int reussites = 0;
    int echecs = 0;
    for (const auto& execution : executions) {
        if (executions.size() > 1) {
            Imprime(QStringLiteral("== %1\n").arg(execution->Fichier()).toUtf8());
        }
        Imprime(execution->Sortie());
        reussites += execution->Reussites();
        echecs += execution->Echecs();
    }
    Imprime(QStringLiteral("%1 passed, %2 failed\n").arg(reussites).arg(echecs).toUtf8());
    return echecs == 0 ? 0 : 1;
}

} // namespace

Execution::Execution(const Commande& commande, QString fichier)
    : commande_(commande), fichier_(std::move(fichier))
{
    processus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&processus_, &QProcess::readyReadStandardOutput, this, &Execution::Recoit);
    connect(&processus_, &QProcess::finished, this, &Execution::Fin);
}

QString Execution::PrepareMonde()
{
    if (!commande_.Monde.isEmpty()) {
        return commande_.Monde;
    }
    if (!commande_.Sortie.isEmpty()) {
        return QDir(commande_.Sortie).filePath(QFileInfo(fichier_).completeBaseName());
    }
    temporaire_ = std::make_unique<QTemporaryDir>();
    return temporaire_->path();
}

QStringList Execution::Arguments(const Monde& monde) const
{
    QStringList arguments = {QStringLiteral("--un"),
                             QStringLiteral("--monde"),
                             monde.Racine(),
                             QStringLiteral("--limite"),
                             QString::number(commande_.Limite),
                             QStringLiteral("--attente"),
                             QString::number(commande_.Attente)};
    if (!commande_.Sortie.isEmpty()) {
        const QString sortie =
            commande_.Monde.isEmpty() ? monde.Racine() : QDir(commande_.Sortie).absolutePath();
        QDir().mkpath(sortie);
        arguments << QStringLiteral("--sortie") << sortie;
    }
    return arguments << fichier_;
}

void Execution::Demarre()
{
    try {
        const Monde monde = Monde::Cree(PrepareMonde(), QStringLiteral(INSTALLATION));
        processus_.setProcessEnvironment(Environnement(monde));
        processus_.start(QCoreApplication::applicationFilePath(), Arguments(monde));
    } catch (const Echec& echec) {
        Echoue(echec.Phrase);
        QTimer::singleShot(0, this, &Execution::Finie);
        return;
    }
    QTimer::singleShot(commande_.Limite * 1000, this, [this] {
        tropLongue_ = processus_.state() != QProcess::NotRunning;
        processus_.kill();
    });
}

void Execution::Recoit()
{
    while (processus_.canReadLine()) {
        RecoitLigne(processus_.readLine());
    }
}

void Execution::RecoitLigne(const QByteArray& ligne)
{
    if (ligne.startsWith(kMarquePosition)) {
        ligne_ = ligne.mid(1).trimmed().toInt();
    } else if (ligne.startsWith(kMarqueFin)) {
        complete_ = true;
    } else {
        reussites_ += ligne.startsWith("ok - ") ? 1 : 0;
        echecs_ += ligne.startsWith("ECHEC - ") ? 1 : 0;
        sortie_ += ligne;
    }
}

void Execution::Fin()
{
    Recoit();
    if (tropLongue_) {
        Echoue(QStringLiteral("plus de %1 s").arg(commande_.Limite));
    } else if (processus_.exitStatus() == QProcess::CrashExit) {
        Echoue(QStringLiteral("fin inattendue du programme (signal %1)").arg(processus_.exitCode()));
    } else if (!complete_ || processus_.exitCode() != 0) {
        Echoue(QStringLiteral("fin inattendue du programme (code %1)").arg(processus_.exitCode()));
    }
    Q_EMIT Finie();
}

void Execution::Echoue(const QString& phrase)
{
    ++echecs_;
    sortie_ += PhraseEchec(QFileInfo(fichier_).absoluteFilePath(), ligne_, phrase).toUtf8() + '\n';
}

int Surveille(const Commande& commande)
{
    std::vector<std::unique_ptr<Execution>> executions;
    for (const QString& fichier : commande.Fichiers) {
        executions.push_back(std::make_unique<Execution>(commande, fichier));
    }
    size_t lancees = 0;
    size_t finies = 0;
    const auto suivante = [&] { executions[lancees++]->Demarre(); };
    for (const auto& execution : executions) {
        QObject::connect(execution.get(), &Execution::Finie, execution.get(), [&] {
            if (++finies == executions.size()) {
                QCoreApplication::quit();
            } else if (lancees < executions.size()) {
                suivante();
            }
        });
    }
    QTimer::singleShot(0, qApp, [&] {
        while (lancees < std::min<size_t>(executions.size(), commande.Ensemble)) {
            suivante();
        }
    });
    QCoreApplication::exec();
    return Resume(executions);
}

} // namespace scenario
