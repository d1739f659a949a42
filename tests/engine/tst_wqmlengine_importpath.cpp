#include <TestCase.h>
#include <WQmlEngine.h>

#include <QDir>
#include <QFile>
#include <QQmlEngine>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Variable = "QML2_IMPORT_PATH";

const QString TooMany = u"QML2_IMPORT_PATH should have only one path! This should NEVER happen!"_s;
const QString NotSet = u"QML2_IMPORT_PATH isn't being set! This should NEVER happen!"_s;

QString invalid(bool relative)
{
    return u"QML2_IMPORT_PATH is invalid! This should NEVER happen! isEmpty: true isRelative: "_s
        + (relative ? "true"_L1 : "false"_L1);
}

} // namespace

// The folder of a row's value stands for "@", so that rows can name what exists and what does not.
class tst_WQmlEngineImportPath : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void importPath_data();
    void importPath();
    void again();

protected:
    void prepare() override;
    void tidy() override;

private:
    QTemporaryDir m_folder;
    QString m_workingFolder;
    QByteArray m_variable;
    bool m_wasSet = false;
};

void tst_WQmlEngineImportPath::initTestCase()
{
    QDir folder(m_folder.path());
    QVERIFY(folder.mkpath(u"one/inside"_s));
    QVERIFY(folder.mkdir(u"two"_s));
    QVERIFY(folder.mkdir(u"with blank"_s));
    QFile file(folder.filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void tst_WQmlEngineImportPath::prepare()
{
    m_wasSet = qEnvironmentVariableIsSet(Variable);
    m_variable = qgetenv(Variable);
    m_workingFolder = QDir::currentPath();
    QDir::setCurrent(m_folder.path());
}

void tst_WQmlEngineImportPath::tidy()
{
    QDir::setCurrent(m_workingFolder);
    if (m_wasSet)
        qputenv(Variable, m_variable);
    else
        qunsetenv(Variable);
}

void tst_WQmlEngineImportPath::importPath_data()
{
    QTest::addColumn<QString>("value"); // null: not set
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QStringList>("paths"); // empty: Qt's own

    const QStringList qtPaths;
    QTest::newRow("unset") << QString() << QStringList{} << qtPaths;
    QTest::newRow("empty") << u""_s << QStringList{} << qtPaths;
    QTest::newRow("blanks") << u" \t "_s << QStringList{} << qtPaths;
    QTest::newRow("separators only") << u":::"_s << QStringList{} << qtPaths;
    QTest::newRow("one") << u"@/one"_s << QStringList{} << QStringList{u"@/one"_s};
    QTest::newRow("an empty folder") << u"@/two"_s << QStringList{} << QStringList{u"@/two"_s};
    QTest::newRow("one between blanks") << u"  @/one\t"_s << QStringList{} << QStringList{u"@/one"_s};
    QTest::newRow("one between separators") << u":@/one::"_s << QStringList{} << QStringList{u"@/one"_s};
    QTest::newRow("a blank in the name") << u"@/with blank"_s << QStringList{} << QStringList{u"@/with blank"_s};
    QTest::newRow("relative") << u"one"_s << QStringList{} << QStringList{u"@/one"_s}; // resolved by Qt
    QTest::newRow("two") << u"@/one:@/two"_s << QStringList{TooMany} << QStringList{u"@/one"_s, u"@/two"_s};
    QTest::newRow("two, the first missing")
        << u"@/none:@/two"_s << QStringList{TooMany, invalid(false)} << QStringList{u"@/two"_s};
    QTest::newRow("two, the second missing")
        << u"@/one:none"_s << QStringList{TooMany, invalid(true)} << QStringList{u"@/one"_s};
    QTest::newRow("two, both missing") << u"@/none:none"_s
                                       << QStringList{TooMany, invalid(false), invalid(true), NotSet} << qtPaths;
    QTest::newRow("missing") << u"@/none"_s << QStringList{invalid(false), NotSet} << qtPaths;
    QTest::newRow("missing, relative") << u"none"_s << QStringList{invalid(true), NotSet} << qtPaths;
    QTest::newRow("a file") << u"@/file"_s << QStringList{invalid(false), NotSet} << qtPaths;
    // Only the blanks around the whole value are dropped.
    QTest::newRow("a blank before a separator")
        << u"@/one :@/two"_s << QStringList{TooMany, invalid(false)} << QStringList{u"@/two"_s};
    QTest::newRow("a blank between separators")
        << u"@/one: :@/two"_s << QStringList{TooMany, invalid(true)} << QStringList{u"@/one"_s, u"@/two"_s};
}

void tst_WQmlEngineImportPath::importPath()
{
    QFETCH(QString, value);
    QFETCH(const QStringList, warnings);
    QFETCH(QStringList, paths);
    if (value.isNull())
        qunsetenv(Variable);
    else
        qputenv(Variable, value.replace(u':', QDir::listSeparator()).replace(u'@', m_folder.path()).toLocal8Bit());
    paths.replaceInStrings(u"@"_s, m_folder.path());
    if (paths.isEmpty())
        paths = QQmlEngine().importPathList();

    const LogRecorder log;
    const WQmlEngine engine;
    QCOMPARE(log.texts(), warnings);
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(engine.importPathList(), paths);
}

// Reads the variable on each call, and leaves the paths alone when there is nothing to set.
void tst_WQmlEngineImportPath::again()
{
    struct Engine : WQmlEngine
    {
        using WQmlEngine::fixImportPath;
    };
    qputenv(Variable, (m_folder.path() + "/one"_L1).toLocal8Bit());
    Engine engine;
    const QStringList one{m_folder.path() + "/one"_L1};
    QCOMPARE(engine.importPathList(), one);

    qunsetenv(Variable);
    engine.fixImportPath();
    QCOMPARE(engine.importPathList(), one);

    qputenv(Variable, (m_folder.path() + "/two"_L1).toLocal8Bit());
    engine.fixImportPath();
    QCOMPARE(engine.importPathList(), QStringList{m_folder.path() + "/two"_L1});
}

LUMAKIT_TEST_MAIN(tst_WQmlEngineImportPath)
#include "tst_wqmlengine_importpath.moc"
