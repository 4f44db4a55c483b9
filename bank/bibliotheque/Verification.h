#pragma once

#include "bank/bibliotheque/Enregistrements.h"

#include <QList>

namespace banque::bibliotheque {

class Session;

/// The interactions of a prescription at or above a level of 0 to 3. An id of 0 is no product, a repeated
/// one counts once. Whatever was not checked stands among the unknown products with the reason in its name:
/// an id that the bank lacks, homeopathy, a substance that the thesaurus does not know, and every product
/// when there is no session, no thesaurus or no readable file. Nothing but memory is thrown.
ResultatInteractions Verifie(Session* session, const QList<Entier>& produits, Entier niveau);

} // namespace banque::bibliotheque
