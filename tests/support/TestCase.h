#pragma once

#include "LogRecorder.h"
#include "MemoryResources.h"
#include "TestApplication.h"

#include <QObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

/// The base of every test class: a warning that is not expected fails the test.
class TestCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        prepare();
    }
    void cleanup() { tidy(); }

protected:
    /// Before and after each test function.
    virtual void prepare() { }
    virtual void tidy() { }
};

/// The main function of a test that runs in a host of the library. The host's theme files are what the test's own
/// resources hold; loading them is not part of the test, so what it logs is dropped.
#define LUMAKIT_TEST_MAIN(TestClass)                     \
    int main(int argc, char **argv)                      \
    {                                                    \
        TestApplication::isolateSettings();              \
        auto startLog = std::make_unique<LogRecorder>(); \
        TestApplication application(argc, argv);         \
        startLog.reset();                                \
        TestClass test;                                  \
        return QTest::qExec(&test, argc, argv);          \
    }

/// The main function of a test that runs without an application object of the library: a plain QApplication.
#define LUMAKIT_PLAIN_TEST_MAIN(TestClass)      \
    int main(int argc, char **argv)             \
    {                                           \
        TestApplication::isolateSettings();     \
        QApplication application(argc, argv);   \
        TestClass test;                         \
        return QTest::qExec(&test, argc, argv); \
    }
