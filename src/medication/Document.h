#pragma once

#include <QString>
#include <optional>

namespace drugbank {
struct Banque;
}
namespace startup {
struct Chemins;
}

namespace medication {

struct Noeud;

/// The address of the page that says that there is no document: "zeromono.htm" of the program.
QString AdresseSansDocument(const startup::Chemins& chemins);

/// The address of what is shown for a node of the bank mode: the monograph of a pack, and
/// `AdresseSansDocument` when it has none and for a personal entry. Nothing while no bank can be asked.
std::optional<QString> AdresseDuDocument(const drugbank::Banque& banque, const startup::Chemins& chemins,
                                         const Noeud& noeud);

/// What the bank has on the pack of a node, a line a document: its type and its name. A sentence where it has
/// nothing, or cannot be asked.
QString ListeDesDocuments(const drugbank::Banque& banque, const Noeud& noeud);

} // namespace medication
