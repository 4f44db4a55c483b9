#pragma once

#include <QString>
#include <exception>

namespace common {

/// A failure that nobody could foresee: a broken disk, a refused statement.
/// `Phrase` is a French sentence for the doctor, `Lieu` the file or statement it is about.
class Erreur : public std::exception
{
public:
    Erreur(QString phrase, QString lieu);

    const char* what() const noexcept override { return texte_.constData(); }
    const QString& Phrase() const { return phrase_; }
    const QString& Lieu() const { return lieu_; }

private:
    QString phrase_;
    QString lieu_;
    QByteArray texte_;
};

} // namespace common
