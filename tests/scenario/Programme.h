#pragma once

#include "application/Contexte.h"

#include <QObject>
#include <QVariant>
#include <memory>

class QApplication;

namespace scenario {

/// The program under test, as the runner sees it. Every call is made in the window thread.
class Programme : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Starts it. Boxes and modal windows run their own loops inside this call.
    virtual void Demarre() = 0;
    /// What the program does when nothing else caught a failure.
    virtual void ArreteSurErreur(const QString& phrase, const QString& lieu) = 0;
    /// A variable of its state; invalid for a name that it does not have.
    virtual QVariant Valeur(const QString& nom) = 0;
    /// Loads one of the windows that the program keeps for the whole run, as its first touch does; nothing
    /// for another name.
    virtual void Touche(const QString&) {}
    /// Makes a printer the confirmed one, as after the first print of a run.
    virtual void ConfirmeImprimante(const QString& nom) = 0;

Q_SIGNALS:
    /// It has ended; the object is deleted once its handlers have returned.
    void Termine();
};

/// Makes programs.
class Fabrique
{
public:
    virtual ~Fabrique() = default;

    /// Style and translations, once.
    virtual void Prepare(QApplication& application) = 0;
    virtual std::unique_ptr<Programme> Fait(const application::Dehors& dehors,
                                            const QString& cheminProgramme) = 0;
};

} // namespace scenario
