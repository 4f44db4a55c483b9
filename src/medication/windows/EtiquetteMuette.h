#pragma once

#include <QLabel>

namespace medication {

/// The name of words that another control shows: a label that lies on them, paints nothing itself and
/// leaves the mouse to that control.
class EtiquetteMuette : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {}
};

} // namespace medication
