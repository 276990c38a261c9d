#pragma once

#include <QString>

/// Who made the Portuguese text and under which licence, in the translators' own words; the licence wants it
/// where readers see it.
inline const QString textCredit = QStringLiteral(
    "Todas as Escrituras em português citadas são da Bíblia Livre (BLIVRE), Copyright © Diego Santos, Mario "
    "Sérgio, e Marco Teles, http://sites.google.com/site/biblialivre/ - fevereiro de 2018. Licença Creative "
    "Commons Atribuição 3.0 Brasil (http://creativecommons.org/licenses/by/3.0/br/). Reprodução "
    "permitida desde que devidamente mencionados fonte e autores.");
