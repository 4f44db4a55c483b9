#include "scenario/Fichiers.h"

#include "scenario/Echec.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace scenario {

namespace {

[[noreturn]] void Echoue(const QString& action, const QString& chemin)
{
    throw Echec{QStringLiteral("« %1 » ne peut pas être %2").arg(chemin, action)};
}

void PrepareDossierDe(const QString& chemin)
{
    if (!QFileInfo(chemin).dir().mkpath(QStringLiteral("."))) {
        Echoue(QStringLiteral("créé"), QFileInfo(chemin).path());
    }
}

void CopieDossier(const QString& source, const QString& destination)
{
    if (!QDir().mkpath(destination)) {
        Echoue(QStringLiteral("créé"), destination);
    }
    const QDir dossier(source);
    for (const QString& nom : dossier.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        Copie(dossier.filePath(nom), QDir(destination).filePath(nom));
    }
}

} // namespace

QByteArray Lit(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        Echoue(QStringLiteral("lu"), chemin);
    }
    return fichier.readAll();
}

void Ecrit(const QString& chemin, const QByteArray& contenu)
{
    QFile fichier(chemin);
    PrepareDossierDe(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(contenu) != contenu.size()) {
        Echoue(QStringLiteral("écrit"), chemin);
    }
}

void Copie(const QString& source, const QString& destination)
{
    if (QFileInfo(source).isDir()) {
        CopieDossier(source, destination);
        return;
    }
    const QString copie = QFileInfo(destination).isDir()
                              ? QDir(destination).filePath(QFileInfo(source).fileName())
                              : destination;
    PrepareDossierDe(copie);
    QFile::remove(copie);
    if (!QFile::copy(source, copie)) {
        Echoue(QStringLiteral("copié"), source);
    }
    QFile::setPermissions(copie, QFile::permissions(copie) | QFile::WriteOwner);
}

void Efface(const QString& chemin)
{
    const QFileInfo info(chemin);
    if (!info.exists() && !info.isSymLink()) {
        return;
    }
    const bool dossier = info.isDir() && !info.isSymLink();
    if (!(dossier ? QDir(chemin).removeRecursively() : QFile::remove(chemin))) {
        Echoue(QStringLiteral("effacé"), chemin);
    }
}

} // namespace scenario
