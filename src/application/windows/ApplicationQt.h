#pragma once

#include <QApplication>
#include <functional>

namespace application {

/// The event loop with a net under it: what a handler throws reaches one receiver, as a French sentence
/// and the file it is about.
class ApplicationQt : public QApplication
{
    Q_OBJECT

public:
    using Receveur = std::function<void(const QString& phrase, const QString& lieu)>;

    using QApplication::QApplication;

    /// The receiver of the first failure; those that follow it are dropped.
    void SurErreur(Receveur receveur) { receveur_ = std::move(receveur); }

    bool notify(QObject* objet, QEvent* evenement) override;

private:
    void Recoit(const QString& phrase, const QString& lieu);

    Receveur receveur_;
};

} // namespace application
