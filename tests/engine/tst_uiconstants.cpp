#include <MetaDescription.h>
#include <TestCase.h>
#include <UiConstants.h>

using namespace Qt::StringLiterals;

class tst_UiConstants : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        const QMetaObject &meta = UiConstants::staticMetaObject;
        QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
        QCOMPARE(MetaDescription::properties(meta), QStringList(u"int ScrollbarSize, read-only"_s));
        QVERIFY(meta.property(meta.propertyOffset()).isConstant());
        QCOMPARE(MetaDescription::invokables(meta), QStringList());
        QCOMPARE(MetaDescription::signalsOf(meta), QStringList());
        QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    }

    void scrollbarSize() { QCOMPARE(UiConstants().property("ScrollbarSize"), QVariant(16)); }
};

LUMAKIT_TEST_MAIN(tst_UiConstants)
#include "tst_uiconstants.moc"
