#pragma once

#include "outside/Lanceur.h"

namespace outside {

class LanceurQt : public Lanceur
{
public:
    bool Lance(const QString& programme, const QStringList& arguments = {}) override;
    bool Ouvre(const QString& documentOuAdresse) override;
};

} // namespace outside
