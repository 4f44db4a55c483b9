#pragma once

#include <string>

namespace jet {

/// The number that a single stands for: 12.1, where its bits as a double say 12.1000004.
double DoubleDe(float simple);

/// A day counted from 30/12/1899 as jj/mm/aaaa, with hh:mm:ss behind it when it is not midnight.
std::string TexteDeDate(double jours);

} // namespace jet
