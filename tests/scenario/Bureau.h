#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace scenario {

/// The part of a desktop that the offscreen platform lacks: when the active window goes away, the one that
/// was active before it is activated.
class Bureau : public QObject
{
public:
    explicit Bureau(QObject* parent = nullptr);

    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Reactive();

    QList<QPointer<QWidget>> ordre_; // last activated first
};

} // namespace scenario
