#pragma once

#include <QObject>

namespace application {

/// Makes a double click on a button one click, and Enter held down one press: the command would run twice.
/// Installed as the event filter of the button, and of a dialogue for the Enter that reaches it.
class UnSeulClic : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
};

} // namespace application
