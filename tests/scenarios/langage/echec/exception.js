// attendu : exception.js:2 : boum
throw "boum";
