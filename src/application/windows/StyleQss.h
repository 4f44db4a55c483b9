#pragma once

#include <QString>

namespace application::style {

/// The style sheet of the whole program, with the colours of `Teinte`.
QString FeuilleDeStyle();

} // namespace application::style
