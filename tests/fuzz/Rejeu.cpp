// Replays a corpus without libFuzzer: every file as it is, cut at every length, and with single bytes
// changed.
#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille);

namespace {

constexpr qsizetype kTailleVariee = 512; // of a file whose variants are tried too

void Essaie(const QByteArray& octets)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(octets.constData()),
                           static_cast<size_t>(octets.size()));
}

void EssaieVariantes(const QByteArray& octets)
{
    for (qsizetype i = 0; i < qMin(octets.size(), kTailleVariee); ++i) {
        Essaie(octets.first(i));
        for (const char remplace : {'\0', '"', ',', '-', '\r', '9', ' ', '\xFF'}) {
            QByteArray variante = octets;
            variante[i] = remplace;
            Essaie(variante);
        }
    }
}

} // namespace

int main(int nombre, char** arguments)
{
    int rejoues = 0;
    for (int i = 1; i < nombre; ++i) {
        const QDir dossier(QString::fromLocal8Bit(arguments[i]));
        for (const QString& nom : dossier.entryList(QDir::Files)) {
            QFile fichier(dossier.filePath(nom));
            if (fichier.open(QIODevice::ReadOnly)) {
                const QByteArray octets = fichier.readAll();
                Essaie(octets);
                EssaieVariantes(octets);
                ++rejoues;
            }
        }
    }
    std::printf("%d files replayed\n", rejoues);
    return rejoues > 0 ? 0 : 1;
}
