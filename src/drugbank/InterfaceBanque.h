#pragma once

#include <cstdint>

/// The C interface of a drug bank: a helper library that tells where the bank is, and the bank itself.
/// It stands alone, so that a library that answers as a bank is built with this header and nothing else.
///
/// Every function is found by its plain name. On 32-bit Windows the calls are `__stdcall`, and a name may
/// also be decorated, "Name@8" or "_Name@8"; elsewhere they are those of the C compiler. A handle has 32 bits
/// on every system and 0 is none: a bank of 64 bits numbers its records and keeps their addresses to itself.
/// Text and buffers are addresses of the system's own width. A program of 64 bits cannot load a bank of 32
/// bits.
///
/// Text is Windows-1252 and ends in a NUL. A text that the bank gives stays its own, and holds at least
/// until the record that gave it is released. A path is written in the 8-bit set of the system's file names.
#if defined(_WIN32) && !defined(_WIN64)
#define DRUGBANK_APPEL __stdcall
#else
#define DRUGBANK_APPEL
#endif

namespace drugbank {

using Poignee = std::int32_t;     ///< a session, a record or a list; belongs to whom it was given
using TexteBanque = const char*;  ///< belongs to the bank
using Entier = std::int32_t;      ///< an id, a rank, a count, a status
using ListeCodes = const Entier*; ///< read during the call alone

} // namespace drugbank

/// The functions of the helper library: F(name, result, arguments...).
#define DRUGBANK_FONCTIONS_AIDE(F) F(VidalHelper_getVidalAPIPath, Entier, Entier, char*, Entier)

/// Session and text. A start takes the place for the session and the product.
#define DRUGBANK_FONCTIONS_SESSION(F)                                                                        \
    F(VidalAPI_init, Entier, Poignee*, Entier)                                                               \
    F(VidalAPI_asyncInit, Entier, Poignee*, Entier)                                                          \
    F(VidalAPI_asyncStartResult, Entier, Poignee, Entier)                                                    \
    F(VidalAPI_getVersion, Entier, char*, Entier)                                                            \
    F(VidalAPI_release, void, Poignee)                                                                       \
    F(DatabaseInfoService_getExpiryDate, std::int64_t, Poignee)                                              \
    F(StringLength, Entier, TexteBanque)                                                                     \
    F(CopyStringN2, void, char*, TexteBanque, Entier)                                                        \
    F(CopyString, void, char*, TexteBanque)

/// What is asked with the session first.
#define DRUGBANK_FONCTIONS_SERVICES(F)                                                                       \
    F(PackService_searchByNameWithPagedResult, Poignee, Poignee, TexteBanque, ListeCodes, Entier,            \
      ListeCodes, Entier, Entier, Entier)                                                                    \
    F(PackService_searchByCip, Poignee, Poignee, TexteBanque)                                                \
    F(PackService_searchByProductId, Poignee, Poignee, Entier)                                               \
    F(DocumentService_getAllDocumentForPackId, Poignee, Poignee, Entier)                                     \
    F(DocumentService_getMonoForPackId, Poignee, Poignee, Entier)                                            \
    F(CommonNameGroupService_searchByProductId, Poignee, Poignee, Entier)                                    \
    F(GenericGroupService_searchByProductId, Poignee, Poignee, Entier)                                       \
    F(ProductService_searchByGenericGroupId, Poignee, Poignee, Entier)                                       \
    F(InteractionService_searchInteractionCouplesForProductIds, Poignee, Poignee, ListeCodes, Entier, Entier)

/// What is read of the packs and products.
#define DRUGBANK_FONCTIONS_PRODUITS(F)                                                                       \
    F(Pack_getCip, TexteBanque, Poignee)                                                                     \
    F(Pack_getName, TexteBanque, Poignee)                                                                    \
    F(Pack_getId, Entier, Poignee)                                                                           \
    F(Pack_getProductId, Entier, Poignee)                                                                    \
    F(Pack_getPublicPrice, double, Poignee)                                                                  \
    F(Pack_release, void, Poignee)                                                                           \
    F(PackList_getCount, Entier, Poignee)                                                                    \
    F(PackList_getItem, Poignee, Poignee, Entier)                                                            \
    F(PackList_release, void, Poignee)                                                                       \
    F(PagedResultPack_getRowCount, Entier, Poignee)                                                          \
    F(PagedResultPack_getResult, Poignee, Poignee)                                                           \
    F(PagedResultPack_release, void, Poignee)                                                                \
    F(Product_getId, Entier, Poignee)                                                                        \
    F(Product_getName, TexteBanque, Poignee)                                                                 \
    F(Product_release, void, Poignee)                                                                        \
    F(ProductList_getCount, Entier, Poignee)                                                                 \
    F(ProductList_getItem, Poignee, Poignee, Entier)                                                         \
    F(ProductList_release, void, Poignee)

/// What is read of the groups and documents.
#define DRUGBANK_FONCTIONS_GROUPES(F)                                                                        \
    F(ProductGenericGroup_getGenericGroup, Poignee, Poignee)                                                 \
    F(ProductGenericGroup_release, void, Poignee)                                                            \
    F(ProductGenericGroupList_getCount, Entier, Poignee)                                                     \
    F(ProductGenericGroupList_getItem, Poignee, Poignee, Entier)                                             \
    F(ProductGenericGroupList_release, void, Poignee)                                                        \
    F(GenericGroup_getId, Entier, Poignee)                                                                   \
    F(GenericGroup_getActiveExcipientHomogeneity, Entier, Poignee)                                           \
    F(GenericGroup_release, void, Poignee)                                                                   \
    F(CommonNameGroup_getName, TexteBanque, Poignee)                                                         \
    F(CommonNameGroup_release, void, Poignee)                                                                \
    F(Document_getId, Entier, Poignee)                                                                       \
    F(Document_getName, TexteBanque, Poignee)                                                                \
    F(Document_getType, Entier, Poignee)                                                                     \
    F(Document_getURL, TexteBanque, Poignee)                                                                 \
    F(Document_release, void, Poignee)                                                                       \
    F(DocumentList_getCount, Entier, Poignee)                                                                \
    F(DocumentList_getItem, Poignee, Poignee, Entier)                                                        \
    F(DocumentList_release, void, Poignee)

/// What is read of the interactions. The getter of the unknown products is spelt as it stands.
#define DRUGBANK_FONCTIONS_INTERACTIONS(F)                                                                   \
    F(InteractionResult_getInteractionCoupleList, Poignee, Poignee)                                          \
    F(InteractionResult_getUnkownProductInteractionList, Poignee, Poignee)                                   \
    F(InteractionResult_release, void, Poignee)                                                              \
    F(InteractionCoupleList_getCount, Entier, Poignee)                                                       \
    F(InteractionCoupleList_getItem, Poignee, Poignee, Entier)                                               \
    F(InteractionCoupleList_release, void, Poignee)                                                          \
    F(InteractionCouple_getInteractionId, Entier, Poignee)                                                   \
    F(InteractionCouple_getSeverity, Entier, Poignee)                                                        \
    F(InteractionCouple_getPrecautionComment, TexteBanque, Poignee)                                          \
    F(InteractionCouple_getRiskComment, TexteBanque, Poignee)                                                \
    F(InteractionCouple_getProductA, Poignee, Poignee)                                                       \
    F(InteractionCouple_getProductB, Poignee, Poignee)                                                       \
    F(InteractionCouple_getDrugInteractionClassA, Poignee, Poignee)                                          \
    F(InteractionCouple_getDrugInteractionClassB, Poignee, Poignee)                                          \
    F(InteractionCouple_release, void, Poignee)                                                              \
    F(DrugInteractionClass_getId, Entier, Poignee)                                                           \
    F(DrugInteractionClass_getName, TexteBanque, Poignee)                                                    \
    F(DrugInteractionClass_release, void, Poignee)

/// What the open bank has besides: before its start it is told which bank file to read, by its path in UTF-8.
#define DRUGBANK_FONCTIONS_PUBLIQUES(F) F(BanquePublique_choisitFichier, void, const char*)

/// Every function of the bank library itself.
#define DRUGBANK_FONCTIONS_BANQUE(F)                                                                         \
    DRUGBANK_FONCTIONS_SESSION(F)                                                                            \
    DRUGBANK_FONCTIONS_SERVICES(F)                                                                           \
    DRUGBANK_FONCTIONS_PRODUITS(F)                                                                           \
    DRUGBANK_FONCTIONS_GROUPES(F)                                                                            \
    DRUGBANK_FONCTIONS_INTERACTIONS(F)
