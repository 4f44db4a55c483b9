#pragma once

#include <stdexcept>

namespace jet {

/// The file holds what no sound file holds.
class Defaut : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace jet
