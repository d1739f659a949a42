#include "ComponentTest.h"

#include <LKQmlRegister.h>
#include <WQmlEngine.h>

#include <QQmlComponent>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Imports = "import QtQuick\nimport QtQuick.Controls\nimport QtQuick.Templates as T\n"
                           "import QtQuick.Layouts\nimport Corvane 1.0\nimport LumakitQml 1.0\nimport 'qrc:/Qml'\n";

void registerOnce()
{
    static const bool registered = [] {
        LKQmlRegister::registerLKQmlDataTypes();
        LKQmlRegister::registerLKQmlComponents();
        return true;
    }();
    Q_UNUSED(registered)
}

QPoint centre(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

} // namespace

void ComponentTest::prepare()
{
    registerOnce();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    application()->setAnimationsDisabled(false);
    if (application()->getThemeMode() != "default"_L1)
        application()->setThemeMode(u"default"_s);
    application()->setFontScaleFactor(1);
}

void ComponentTest::tidy()
{
    m_view.reset();
}

QQuickItem *ComponentTest::show(const QByteArray &qml)
{
    m_view = std::make_unique<QQuickView>(application()->getQmlEngine(), nullptr);
    QQmlComponent component(m_view->engine());
    component.setData(Imports + qml, QUrl(u"qrc:/Qml/Test.qml"_s));
    std::unique_ptr<QObject> object(component.create());
    auto *item = qobject_cast<QQuickItem *>(object.get());
    if (!item) {
        qCritical().noquote() << component.errorString();
        return nullptr;
    }
    m_view->setContent(component.url(), nullptr, object.release());
    const QSizeF size(std::max(item->width(), item->implicitWidth()), std::max(item->height(), item->implicitHeight()));
    m_view->resize(size.toSize().expandedTo({400, 300}));
    m_view->show();
    if (!QTest::qWaitForWindowActive(m_view.get())) {
        qCritical() << "the window does not become active";
        return nullptr;
    }
    return item;
}

QQuickItem *ComponentTest::root() const
{
    return m_view ? m_view->rootObject() : nullptr;
}

QQuickWindow *ComponentTest::window() const
{
    return m_view.get();
}

void ComponentTest::click(QQuickItem *item, Qt::MouseButton button) const
{
    QTest::mouseClick(window(), button, {}, centre(item));
}

void ComponentTest::click(QQuickItem *item, const QPointF &position, Qt::MouseButton button) const
{
    QTest::mouseClick(window(), button, {}, item->mapToScene(position).toPoint());
}

void ComponentTest::moveMouseTo(QQuickItem *item) const
{
    QTest::mouseMove(window(), centre(item) - QPoint(1, 1)); // a move to where the cursor is makes no event
    QTest::mouseMove(window(), centre(item));
}

void ComponentTest::moveMouseAway() const
{
    QTest::mouseMove(window(), QPoint(window()->width() - 1, window()->height() - 1));
}

void ComponentTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(window(), key, modifiers);
}

TestApplication *ComponentTest::application()
{
    return static_cast<TestApplication *>(QCoreApplication::instance());
}
