#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// Files of the resource system made from memory, there while the object lives: {"/Themes/dark.json", bytes} is read
/// as ":/Themes/dark.json". A file of that name that is there already wins.
class MemoryResources
{
public:
    explicit MemoryResources(const QMap<QString, QByteArray> &files);
    ~MemoryResources();
    Q_DISABLE_COPY_MOVE(MemoryResources)

private:
    QByteArray m_data;
};
