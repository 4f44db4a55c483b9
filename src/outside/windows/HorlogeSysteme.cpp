#include "outside/windows/HorlogeSysteme.h"

#include <QTimer>

namespace outside {

QDateTime HorlogeSysteme::Maintenant() const
{
    return QDateTime::currentDateTime();
}

void HorlogeSysteme::Dans(int ms, QObject* contexte, std::function<void()> suite)
{
    QTimer::singleShot(ms, contexte, std::move(suite));
}

} // namespace outside
