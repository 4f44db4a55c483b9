// attendu : ECHEC - en profondeur (attendu [1,{"a":[3]}], obtenu [1,{"a":[2]}])
egal([1, {a: [2]}], [1, {a: [3]}], "en profondeur");
egal([1, {a: [2]}], [1, {a: [2]}], "semblables");
