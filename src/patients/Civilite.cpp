#include "patients/Civilite.h"

#include <algorithm>

namespace patients {

int OptionDeCivilite(const QString& titre)
{
    const auto place =
        std::ranges::find_if(kCivilites, [&](const Civilite& civilite) { return titre == civilite.Mot; });
    return place == kCivilites.end() ? -1 : static_cast<int>(place - kCivilites.begin());
}

QString MotDeCivilite(int option)
{
    const bool connue = option >= 0 && option < static_cast<int>(kCivilites.size());
    return connue ? QString::fromUtf16(kCivilites[size_t(option)].Mot) : QString();
}

QString AvecCivilite(const QString& titre, const QString& nom)
{
    return titre.isEmpty() ? nom : titre + QStringLiteral("  ") + nom;
}

} // namespace patients
