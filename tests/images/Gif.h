#pragma once

#include <QByteArray>

/// Two frames of 1 x 1 pixel, red and blue, a hundredth of a second each, endlessly.
inline QByteArray gif()
{
    return QByteArray::fromHex("474946383961"
                               "0100010080000"
                               "0ff00000000ff"
                               "21ff0b4e45545343415045322e300301000000"
                               "21f90400010000002c000000000100010000020244010021f90400010000002c0000000001000100000202"
                               "4c01003b");
}
