#include "essai/Journal.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace essai {

Journal::Journal(const QString& chemin) : fichier_(chemin)
{
    if (fichier_.open(QIODevice::ReadOnly)) {
        lignes_ = static_cast<int>(fichier_.readAll().count('\n'));
        fichier_.close();
    }
    if (!fichier_.open(QIODevice::WriteOnly | QIODevice::Append)) {
        qFatal("%s", qPrintable(chemin));
    }
}

void Journal::Note(const char* nom, const QJsonArray& arguments, drugbank::Poignee poignee, bool faute)
{
    QJsonObject ligne = {{QStringLiteral("nom"), QLatin1String(nom)},
                         {QStringLiteral("arguments"), arguments}};
    if (poignee != 0) {
        ligne[QStringLiteral("poignee")] = poignee;
    }
    if (faute) {
        ligne[QStringLiteral("faute")] = true;
    }
    fichier_.write(QJsonDocument(ligne).toJson(QJsonDocument::Compact) + '\n');
    fichier_.flush();
}

} // namespace essai
