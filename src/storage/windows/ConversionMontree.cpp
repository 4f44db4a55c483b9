#include "storage/windows/ConversionMontree.h"

#include "storage/windows/FrmConversion.h"

namespace storage {

void ConversionMontree::Commence(const QString& chemin)
{
    fenetres_.Donne<FrmConversion>().MontreFichier(chemin);
}

void ConversionMontree::Attend()
{
    fenetres_.Donne<FrmConversion>().MontreAttente();
}

void ConversionMontree::Avance(const QString& table, qint64 lignes, qint64 sur)
{
    fenetres_.Donne<FrmConversion>().MontreLignes(table, lignes, sur);
}

void ConversionMontree::Termine()
{
    fenetres_.Decharge<FrmConversion>();
}

bool ConversionMontree::Abandonne() const
{
    const auto* fenetre = fenetres_.Presente<FrmConversion>();
    return fenetre && fenetre->EstAbandonnee();
}

} // namespace storage
