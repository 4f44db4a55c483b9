#pragma once

#include <QJsonObject>
#include <QString>

namespace essai {

/// The object in the file beside this library, of the same name with ".json"; empty when it cannot be read.
QJsonObject LitDescription();

} // namespace essai
