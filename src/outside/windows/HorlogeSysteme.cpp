#include "outside/windows/HorlogeSysteme.h"

namespace outside {

QDateTime HorlogeSysteme::Maintenant() const
{
    return QDateTime::currentDateTime();
}

} // namespace outside
