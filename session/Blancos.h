#pragma once

#include <QStringView>

// Views of a text without its blanks, as `Trim` cuts them: blanks alone, no other white space.

inline QStringView Sin_Blancos_Izquierda(QStringView t)
{
    qsizetype i = 0;
    while (i < t.size() && t[i] == u' ')
        ++i;
    return t.mid(i);
}

inline QStringView Sin_Blancos(QStringView t)
{
    t = Sin_Blancos_Izquierda(t);
    qsizetype n = t.size();
    while (n > 0 && t[n - 1] == u' ')
        --n;
    return t.left(n);
}
