#pragma once

#include <QByteArray>
#include <QString>

namespace scenario {

/// What the process that plays a file tells the one that watches it, line by line on its output: the
/// checks as the reader sees them, and two kinds of lines that the watcher keeps for itself.
class Rapport
{
public:
    explicit Rapport(QString fichier) : fichier_(std::move(fichier)) {}

    /// The script is at that line now.
    void Position(int ligne);
    int Ligne() const { return ligne_; }

    void Reussite(const QString& texte);
    /// A failed check; `detail` says what was expected and what came.
    void EchecControle(const QString& texte, const QString& detail);
    /// The script cannot go on, or ended badly, at that line.
    void EchecScript(int ligne, const QString& phrase);
    /// The file was played to its end.
    void Termine();

private:
    void Ecrit(const QString& texte);

    QString fichier_;
    int ligne_ = 0;
};

constexpr char kMarquePosition = '\x1d';
constexpr char kMarqueFin = '\x1e';

/// "ECHEC - fichier.js:12 : phrase", for a failure that is no check.
QString PhraseEchec(const QString& fichier, int ligne, const QString& phrase);

} // namespace scenario
