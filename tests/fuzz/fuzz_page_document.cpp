#include "drugbank/AdresseDocument.h"
#include "drugbank/PageDocument.h"

#include <QRegularExpression>
#include <cstdlib>

using namespace drugbank;

/// Whatever a page holds, no cell of what is shown spans more than 100 others; and no address that is loaded
/// names another computer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    const QByteArray page(reinterpret_cast<const char*>(octets), static_cast<qsizetype>(taille));
    const QString html = HtmlDeLaPage(page);
    static const QRegularExpression etendue(
        QStringLiteral("\\b(col|row)span\\s*=\\s*[\"']?\\s*\\+?0*[1-9]\\d{3}"),
        QRegularExpression::CaseInsensitiveOption);
    if (html.contains(QStringLiteral("<table")) && etendue.match(html).hasMatch()) {
        std::abort();
    }
    const QUrl adresse = AdresseDepuisTexte(TexteDeLaPage(page));
    const QString hote = adresse.host();
    const bool boucle = hote == QStringLiteral("localhost") || hote == QStringLiteral("::1") ||
                        hote.startsWith(QStringLiteral("127."));
    if (SortDeLAdresse(adresse) == Sort::Boucle && !boucle) {
        std::abort();
    }
    return 0;
}
