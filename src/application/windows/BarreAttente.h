#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>

class QDialog;
class QLabel;
class QProgressBar;

namespace application {

/// What the doctor sees of a long work that runs in the window thread: after two seconds a small window with
/// a word and a bar, painted at each `Montre`. It takes no click and goes with this object.
class BarreAttente
{
public:
    BarreAttente();
    ~BarreAttente();
    BarreAttente(const BarreAttente&) = delete;
    BarreAttente& operator=(const BarreAttente&) = delete;

    /// So many thousandths are done; an empty word leaves the former one. Lets the windows paint.
    void Montre(int milliemes, const QString& mot);

private:
    void Ouvre();

    QElapsedTimer depuis_;
    std::unique_ptr<QDialog> fenetre_;
    QLabel* mot_ = nullptr;
    QProgressBar* barre_ = nullptr;
};

} // namespace application
