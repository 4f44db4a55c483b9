#pragma once

#include "BanqueDeTest.h"
#include "DonneesReelles.h"
#include "PosteBdp.h"

namespace support {

/// The library started over the published files, with the thesaurus; over the project's own where they do not
/// stand.
class PosteReel
{
public:
    PosteReel()
    {
        if (!DonneesReelles::Presentes()) {
            Poste.emplace(DossierExtrait(), ThesaurusExtrait());
        } else {
            const DonneesReelles donnees;
            const QTemporaryDir dossier;
            const QString thesaurus = common::Joint(dossier.path(), QStringLiteral("thesaurus.txt"));
            QProcess xz;
            xz.setStandardOutputFile(thesaurus);
            xz.start(QStringLiteral("xz"), {QStringLiteral("-dc"),
                                            DonneesReelles::Paquets() +
                                                QStringLiteral("/../interactions/thesaurus_2023-09.txt.xz")});
            xz.waitForFinished();
            Poste.emplace(donnees.Dossier(), thesaurus);
        }
        if (Poste->Demarre() != 0) {
            qFatal("the bank does not start");
        }
    }

    std::optional<PosteBdp> Poste;
};

} // namespace support
