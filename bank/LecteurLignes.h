#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

namespace banque {

enum class Encodage { Utf8, Windows1252 };

/// UTF-8 when the bytes beyond ASCII mostly form its sequences; each file has its own.
Encodage DetecteEncodage(QByteArrayView octets);

/// One line of a public file. The fields are views into the reader and last until its next line.
struct Ligne
{
    int Numero = 0; ///< from 1, blank lines counted
    QVarLengthArray<QStringView, 16> Champs;
};

/// Walks the lines of a public file: fields separated by tabs, no quotes and no escapes, ended by CRLF or LF
/// or by the file's end. Blank lines are passed over. The bytes must outlive the reader.
class LecteurLignes
{
public:
    explicit LecteurLignes(QByteArrayView octets);

    /// False at the end.
    bool Suivante(Ligne& ligne);

    int Vides() const { return vides_; }
    /// True when the last line has no end.
    bool FinOuverte() const { return !octets_.isEmpty() && octets_.back() != '\n'; }
    /// All lines of the file, blank ones counted.
    qint64 NombreDeLignes() const;

private:
    QByteArrayView LigneBrute();
    void Decode(QByteArrayView brute);

    QByteArrayView octets_;
    Encodage encodage_;
    qsizetype place_ = 0;
    int numero_ = 0;
    int vides_ = 0;
    QString texte_;
};

} // namespace banque
