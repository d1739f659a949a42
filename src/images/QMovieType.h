#pragma once

#include <QMovie>
#include <qqmlintegration.h>

/// Makes QMovie known to tools as the type of properties; QML cannot create one.
struct QMovieType
{
    Q_GADGET
    QML_FOREIGN(QMovie)
    QML_ANONYMOUS
};
