#pragma once

#include "application/Contexte.h"

#include <QString>

namespace drugbank {
struct Banque;
}

/// The interactions of the prescription in hand, as the drug bank knows them.
namespace medication {

/// `CalculeInteractions`: asks the bank about the products of the lines, those of the first zone first, and
/// keeps the answer in `RapportInteractions`. Lines whose code is no product id, or one of
/// another bank, are named in it as unchecked.
void CalculeInteractions(application::Contexte& contexte);

/// True when the last calculation found something to tell.
bool AInteractions(const drugbank::Banque& banque);
/// True when the last calculation found no bank and there is one now.
bool InteractionsARefaire(const drugbank::Banque& banque);

/// Which of both controls was clicked.
enum class Clic { AniGIFI, HlbI };
/// The text to show for a click. Without interactions it says so and stays in `RapportInteractions` until
/// the next calculation; where no bank answered it says that nothing could be checked.
QString TexteInteractions(drugbank::Banque& banque, Clic clic);

} // namespace medication
