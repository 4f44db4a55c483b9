#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <functional>

class QTextDocument;

namespace certificates {

/// What belongs to a text beside its words.
struct MiseEnPage
{
    double DecalageCertif = 0;
    quint8 CertifALD = 0;
    QString Modele; ///< the template in use, empty for none

    bool operator==(const MiseEnPage&) const = default;
};

/// Lets shift, ALD state and template follow the text when it is undone and redone: the shift would no longer
/// be in step with the blanks of the text, and one template's text would be saved over another.
class SuiviMiseEnPage : public QObject
{
    Q_OBJECT

public:
    using Lecture = std::function<MiseEnPage()>;
    using Remise = std::function<void(const MiseEnPage&)>;

    /// `lit` gives what is in force, `remet` puts another in force; `document` must outlive the object.
    SuiviMiseEnPage(QTextDocument& document, Lecture lit, Remise remet);

    /// Runs a change of the text whose page setup is in force already.
    void Change(const std::function<void()>& change);
    /// The page setup in force belongs to the text as it stands.
    void Note();

private:
    void OublieLaSuite();
    void Suit();
    bool ToutOublie() const;
    int Pas() const;

    QTextDocument& document_;
    Lecture lit_;
    Remise remet_;
    QMap<int, MiseEnPage> notes_; // by the undo steps that lead to them
    int pas_ = 0;
    bool enChange_ = false;
};

} // namespace certificates
