#pragma once

#include <QString>

namespace brinewright {

// The letter of Caption that the keyboard reaches it by together with Alt: the first of a word, or any other,
// that Taken does not hold yet. Joins it to Taken; none is a null character.
QChar Choose_Mnemonic(const QString& Caption, QString& Taken);

// Caption as the toolkit wants it, with Letter marked where it has it.
QString With_Mnemonic(QString Caption, QChar Letter);

} // namespace brinewright
