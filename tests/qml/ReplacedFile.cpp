#include "ReplacedFile.h"

#include <algorithm>
#include <cstring>

namespace {

class TextFile : public QAbstractFileEngine
{
public:
    TextFile(const QString &path, const QByteArray &text)
        : m_path(path)
        , m_text(text)
    {
    }

    bool open(QIODevice::OpenMode mode, std::optional<QFile::Permissions>) override
    {
        m_position = 0;
        return !(mode & QIODevice::WriteOnly);
    }
    bool close() override { return true; }
    qint64 size() const override { return m_text.size(); }
    qint64 pos() const override { return m_position; }
    bool seek(qint64 position) override
    {
        m_position = std::clamp<qint64>(position, 0, size());
        return m_position == position;
    }
    qint64 read(char *data, qint64 length) override
    {
        const qint64 count = std::min(length, size() - m_position);
        std::memcpy(data, m_text.constData() + m_position, size_t(count));
        m_position += count;
        return count;
    }
    bool isSequential() const override { return false; }
    bool isRelativePath() const override { return false; }
    bool caseSensitive() const override { return true; }
    FileFlags fileFlags(FileFlags type) const override
    {
        return type & FileFlags(ExistsFlag | FileType | ReadOwnerPerm | ReadUserPerm | ReadGroupPerm | ReadOtherPerm);
    }
    QString fileName(FileName part) const override
    {
        const qsizetype slash = m_path.lastIndexOf(u'/');
        switch (part) {
        case BaseName:
            return m_path.sliced(slash + 1);
        case PathName:
        case AbsolutePathName:
        case CanonicalPathName:
            return m_path.first(slash);
        default:
            return m_path;
        }
    }

private:
    QString m_path;
    QByteArray m_text;
    qint64 m_position = 0;
};

} // namespace

ReplacedFile::ReplacedFile(const QString &path, const QByteArray &text)
    : m_path(path)
    , m_text(text)
{
}

std::unique_ptr<QAbstractFileEngine> ReplacedFile::create(const QString &fileName) const
{
    if (fileName != m_path)
        return nullptr;
    return std::make_unique<TextFile>(m_path, m_text);
}
