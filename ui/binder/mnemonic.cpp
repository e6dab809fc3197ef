#include "ui/binder/mnemonic.hpp"

namespace brinewright {

QChar Choose_Mnemonic(const QString& Caption, QString& Taken) {
    for (const bool Starts_Word : {true, false})
        for (qsizetype I = 0; I < Caption.size(); ++I) {
            const QChar Letter = Caption[I].toUpper();
            const bool Is_Start = I == 0 || Caption[I - 1].isSpace();
            if (Letter < QLatin1Char('A') || Letter > QLatin1Char('Z') || (Starts_Word && !Is_Start) ||
                Taken.contains(Letter))
                continue;
            Taken += Letter;
            return Letter;
        }
    return {};
}

QString With_Mnemonic(QString Caption, QChar Letter) {
    Caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
    if (Letter.isNull()) return Caption;
    for (const bool Starts_Word : {true, false})
        for (qsizetype I = 0; I < Caption.size(); ++I)
            if (Caption[I].toUpper() == Letter && (!Starts_Word || I == 0 || Caption[I - 1].isSpace()))
                return Caption.insert(I, QLatin1Char('&'));
    return Caption;
}

} // namespace brinewright
