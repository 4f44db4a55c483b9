#pragma once

#include <QHash>
#include <QString>

namespace drugbank {

/// How far an import is: the files that it reads, weighed by their size.
class ProgresBanque
{
public:
    static constexpr int kTotal = 1000;

    /// The files of the directory and the thesaurus, empty for none.
    ProgresBanque(const QString& dossier, const QString& thesaurus);

    /// Takes a stretch of an import and gives what is done, from 0 to `kTotal`; it never goes back.
    int Prend(const QString& fichier, qint64 faites, qint64 total);

private:
    QHash<QString, qint64> tailles_;
    qint64 total_ = 0;
    qint64 finis_ = 0;
    QString fichier_;
    int part_ = 0;
};

} // namespace drugbank
