#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace bench {

/// The process's resident memory in KiB, as the system counts it.
inline long MemoireKio()
{
    QFile etat(QStringLiteral("/proc/self/status"));
    if (!etat.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lignes = etat.readAll().split('\n');
    for (const QByteArray& ligne : lignes) {
        if (ligne.startsWith("VmRSS:")) {
            return ligne.mid(6).simplified().split(' ').value(0).toLong();
        }
    }
    return 0;
}

/// Ends the program once the window has been painted for the first time.
class FinALaPremierePeinture : public QObject
{
public:
    FinALaPremierePeinture(QWidget* fenetre, bool avecMemoire) : avecMemoire_(avecMemoire)
    {
        fenetre->installEventFilter(this);
    }

    bool eventFilter(QObject* objet, QEvent* evenement) override
    {
        if (evenement->type() == QEvent::Paint) {
            objet->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                if (avecMemoire_) {
                    std::printf("%ld\n", MemoireKio());
                    std::fflush(stdout);
                }
                std::_Exit(0);
            });
        }
        return false;
    }

private:
    bool avecMemoire_;
};

} // namespace bench
