#include "MemoryResources.h"

#include <QLocale>
#include <QResource>
#include <QtEndian>

#include <algorithm>
#include <memory>
#include <vector>

// Writes the binary resource format, version 1: a header, the tree in breadth-first order with each folder's entries
// sorted by the hash of their names, the names, and the data.
namespace {

struct Node
{
    QString name;
    QByteArray content;
    bool isFolder = true;
    std::vector<std::unique_ptr<Node>> children;
    quint32 firstChild = 0;

    Node *child(const QString &childName)
    {
        for (auto &candidate : children) {
            if (candidate->name == childName)
                return candidate.get();
        }
        children.push_back(std::make_unique<Node>());
        children.back()->name = childName;
        return children.back().get();
    }
};

template<typename Integer> void append(QByteArray &bytes, Integer value)
{
    const Integer bigEndian = qToBigEndian(value);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

QByteArray encode(const QMap<QString, QByteArray> &files)
{
    Node root;
    for (const auto &[path, content] : files.asKeyValueRange()) {
        Node *node = &root;
        for (const QString &part : path.split(u'/', Qt::SkipEmptyParts))
            node = node->child(part);
        node->isFolder = false;
        node->content = content;
    }

    std::vector<Node *> order{&root};
    for (size_t i = 0; i < order.size(); ++i) {
        auto &children = order[i]->children;
        std::sort(children.begin(), children.end(),
                  [](const auto &a, const auto &b) { return qt_hash(a->name) < qt_hash(b->name); });
        order[i]->firstChild = quint32(order.size());
        for (auto &child : children)
            order.push_back(child.get());
    }

    constexpr quint16 Folder = 2;
    constexpr quint32 HeaderSize = 20;
    QByteArray tree;
    QByteArray names;
    QByteArray data;
    for (const Node *node : order) {
        append(tree, quint32(names.size()));
        append(tree, node->isFolder ? Folder : quint16(0));
        if (node->isFolder) {
            append(tree, quint32(node->children.size()));
            append(tree, node->firstChild);
        } else {
            append(tree, quint16(QLocale::AnyTerritory));
            append(tree, quint16(QLocale::C));
            append(tree, quint32(data.size()));
            append(data, quint32(node->content.size()));
            data.append(node->content);
        }
        append(names, quint16(node->name.size()));
        append(names, qt_hash(node->name));
        for (const QChar character : node->name)
            append(names, character.unicode());
    }

    QByteArray bytes("qres");
    append(bytes, quint32(1));
    append(bytes, HeaderSize);
    append(bytes, quint32(HeaderSize + tree.size() + names.size()));
    append(bytes, quint32(HeaderSize + tree.size()));
    return bytes + tree + names + data;
}

} // namespace

MemoryResources::MemoryResources(const QMap<QString, QByteArray> &files)
    : m_data(encode(files))
{
    if (!QResource::registerResource(reinterpret_cast<const uchar *>(m_data.constData())))
        qFatal("MemoryResources: the resource system refused the data");
}

MemoryResources::~MemoryResources()
{
    QResource::unregisterResource(reinterpret_cast<const uchar *>(m_data.constData()));
}
