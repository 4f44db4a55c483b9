#pragma once

#include "outside/DemarrageSysteme.h"

namespace outside {

/// On Windows a value of the registry's "Run" key, elsewhere an entry of the desktop's "autostart" folder.
class DemarrageSystemeQt : public DemarrageSysteme
{
public:
    /// `programmeEnCours`: the running program's own file, which a desktop entry starts.
    explicit DemarrageSystemeQt(QString programmeEnCours) : programmeEnCours_(std::move(programmeEnCours)) {}

    void Active(const QString& programme) override;
    void Desactive() override;

private:
    QString programmeEnCours_;
};

/// The text of the entry that starts a program with the desktop, quoted by the desktop entries' rules.
QString EntreeDeDemarrage(const QString& programme);

} // namespace outside
