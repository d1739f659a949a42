#include "ReplacedFile.h"

#include <LKQmlRegister.h>
#include <TestCase.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

const QByteArray NoQml = "this is neither QML nor a script {";

QString text(const QList<QQmlError> &errors)
{
    QStringList lines;
    for (const QQmlError &error : errors)
        lines << error.toString();
    return lines.join(u'\n');
}

// Loads a file of the resources with a new engine; what goes wrong.
QString load(const QString &name)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    if (name.endsWith(".js"_L1))
        component.setData("import QtQml\nimport \"qrc:/Qml/" + name.toUtf8() + "\" as Script\nQtObject { }", QUrl());
    else
        component.loadUrl(QUrl("qrc:/Qml/"_L1 + name));
    if (component.isLoading())
        return u"still loading"_s;
    return text(component.errors());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

// The components are in the library as code: their text in the resources is never parsed. The proof is to put something
// else in its place.
class tst_AheadOfTime : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesAreListed();
    void resourcesAreFlat();
    void resourcesHoldTheText_data();
    void resourcesHoldTheText();
    void noModuleFolders();
    void notParsed_data();
    void notParsed();
    void copiesAreParsed_data();
    void copiesAreParsed();

private:
    void rows();
    // As in the list: relative to the folder of all QML files.
    QStringList m_files;
};

void tst_AheadOfTime::initTestCase()
{
    // Nothing compiled by an earlier run, but what is compiled into programs counts.
    qunsetenv("QML_DISABLE_DISK_CACHE");
    qputenv("QML_DISK_CACHE", "aot");
    LKQmlRegister::registerLKQmlDataTypes();
    LKQmlRegister::registerLKQmlComponents();
    const QStringList files = QString::fromLatin1(QML_FILES).split(u'|', Qt::SkipEmptyParts);
    for (const QString &file : files)
        m_files << QDir(QStringLiteral(QML_FOLDER)).relativeFilePath(file);
    QVERIFY(!m_files.isEmpty());
}

// Every component and script that is in the source tree is in the library.
void tst_AheadOfTime::filesAreListed()
{
    QStringList found;
    QDirIterator files(QStringLiteral(QML_FOLDER), {u"*.qml"_s, u"*.js"_s, u"*.mjs"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = QDir(QStringLiteral(QML_FOLDER)).relativeFilePath(files.next());
        if (!file.startsWith("tooling/"_L1))
            found << file;
    }
    QCOMPARE(sorted(m_files), sorted(found));
}

void tst_AheadOfTime::resourcesAreFlat()
{
    QStringList names;
    for (const QString &file : std::as_const(m_files))
        names << QFileInfo(file).fileName();
    QCOMPARE(sorted(QDir(u":/Qml"_s).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)), sorted(names));
    QCOMPARE(QDir(u":/Qml"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
    names.removeDuplicates();
    QCOMPARE(names.size(), m_files.size());
}

void tst_AheadOfTime::resourcesHoldTheText_data()
{
    rows();
}

void tst_AheadOfTime::resourcesHoldTheText()
{
    QFETCH(const QString, file);
    const QByteArray source = read(QStringLiteral(QML_FOLDER "/") + file);
    QVERIFY(!source.isEmpty());
    QCOMPARE(read(":/Qml/"_L1 + QFileInfo(file).fileName()), source);
}

// A qmldir would make a module of the folder, whose names then hide the files.
void tst_AheadOfTime::noModuleFolders()
{
    QStringList found;
    QDirIterator files(u":/"_s, {u"qmldir"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!file.startsWith(":/qt-project.org/"_L1)) // Qt's own
            found << file;
    }
    QCOMPARE(found, QStringList());
    QVERIFY(!QFileInfo::exists(u":/Qml/qmldir"_s));
}

void tst_AheadOfTime::notParsed_data()
{
    rows();
}

void tst_AheadOfTime::notParsed()
{
    QFETCH(const QString, file);
    const QString name = QFileInfo(file).fileName();
    const ReplacedFile instead(":/Qml/"_L1 + name, NoQml);
    QCOMPARE(read(":/Qml/"_L1 + name), NoQml);
    QCOMPARE(load(name), QString());
}

void tst_AheadOfTime::copiesAreParsed_data()
{
    rows();
}

// The same text under another name is not in the library as code; this shows that the test before can fail.
void tst_AheadOfTime::copiesAreParsed()
{
    QFETCH(const QString, file);
    const QFileInfo info(file);
    const QString copy = "CopyOf"_L1 + info.fileName();
    const MemoryResources copies({{"/Qml/"_L1 + copy, read(":/Qml/"_L1 + info.fileName())}});
    QCOMPARE(load(copy), QString());
    const ReplacedFile instead(":/Qml/"_L1 + copy, NoQml);
    QCOMPARE(read(":/Qml/"_L1 + copy), NoQml);
    const QString error = load(copy);
    QVERIFY2(error.contains("qrc:/Qml/"_L1 + copy + ":1:"_L1), qPrintable("no syntax error: "_L1 + error));
}

void tst_AheadOfTime::rows()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : std::as_const(m_files))
        QTest::addRow("%s", qPrintable(QFileInfo(file).fileName())) << file;
}

LUMAKIT_TEST_MAIN(tst_AheadOfTime)
#include "tst_ahead_of_time.moc"
