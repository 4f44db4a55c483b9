#pragma once

#include "application/windows/Fenetres.h"
#include "storage/SuiviConversion.h"

namespace storage {

/// Shows each conversion of a run in `FrmConversion`.
class ConversionMontree : public SuiviConversion
{
public:
    explicit ConversionMontree(application::Fenetres& fenetres) : fenetres_(fenetres) {}

    void Commence(const QString& chemin) override;
    void Attend() override;
    void Avance(const QString& table, qint64 lignes, qint64 sur) override;
    void Termine() override;
    bool Abandonne() const override;

private:
    application::Fenetres& fenetres_;
};

} // namespace storage
