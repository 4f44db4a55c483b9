// attendu : ECHEC - pas autre (attendu autre que [1], obtenu [1])
different([1], [1], "pas autre");
different([1], ["1"], "autre");
