#pragma once

#include <QObject>

namespace application {

/// Tells the windows what core changed, so that core knows no window.
class Signaux : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// The list of doctors, or its selection, has changed.
    void MedecinsChanges();
    /// Another doctor is current, his settings are read.
    void MedecinChange();
    /// A settings variable changed: menus, ruler, height entries follow.
    void ReglagesChanges();
    /// The sheet of the preview was painted or cleared.
    void ApercuChange();
    /// The face of the main window has to be painted again.
    void FaceChange();
    /// The settings were kept without a doctor: the main window takes its colours for that.
    void FaceSansMedecin();
    /// A new document begins: patient and prescription are empty.
    void DocumentVide();
    /// The prescription in hand was reset or given other check boxes.
    void OrdonnanceChange();
    /// The prescription in hand is a memorised one from now on, or is none any more.
    void MemoireChange();
    /// The table of patients changed from outside its window.
    void PatientsChanges();
    /// The personal pharmacy, or the local one, changed from outside the picker.
    void PharmacieChange();
    /// The safety copy of the day could not be made, with the sentence for the doctor.
    void SauvegardeEchouee(const QString& phrase);
    /// The status window of the bank's start appears, changes or goes, or the session changed.
    void StatutBanqueChange();
    /// A window asks for the end of the program: session closed, tray icon removed, windows unloaded.
    void FinDemandee();
};

} // namespace application
