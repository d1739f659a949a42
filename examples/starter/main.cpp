#include "GreetingController.h"

#include <LKQmlRegister.h>
#include <WApplication.h>
#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QQuickItem>

using namespace Qt::StringLiterals;

// The application object: QML knows it as App.
class StarterApplication : public WApplication
{
    Q_OBJECT
    Q_PROPERTY(bool isDarkTheme READ isDarkTheme NOTIFY isDarkThemeChanged)

public:
    StarterApplication(int &argc, char **argv)
        : WApplication(argc, argv)
    {
        connect(this, &IWApplication::themeModeChanged, this, [this] { Q_EMIT isDarkThemeChanged(isDarkTheme()); });
    }

    bool isDarkTheme() const { return getThemeMode() == "dark"_L1; }
    Q_INVOKABLE void toggleTheme() { setThemeMode(isDarkTheme() ? u"default"_s : u"dark"_s); }

    Q_INVOKABLE void showAbout()
    {
        if (const auto dialog = WQmlEngine::createQmlDialog(u"StarterAbout.qml"_s)) {
            dialog->setTransientParent(m_window);
            dialog->show();
        }
    }

    bool showWindow()
    {
        m_window = WQmlEngine::createQmlWindow(u"StarterWindow.qml"_s);
        if (!m_window || !m_window->rootObject())
            return false;
        QQuickItem *root = m_window->rootObject();
        // A component joins the scene when it is ready; its controller takes the initial properties.
        WQmlEngine::createQmlComponent(u"StarterGreeting.qml"_s, root, {{u"name"_s, u"world"_s}},
                                       [root](QObject *object, WQmlController *) {
                                           if (auto *item = qobject_cast<QQuickItem *>(object))
                                               item->setParentItem(root->findChild<QQuickItem *>(u"greeting"_s));
                                       });
        m_window->show();
        return true;
    }

private:
    QPointer<WQuickView> m_window;
};

int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName(u"LumakitQml"_s); // the stored theme mode is read on construction
    QCoreApplication::setApplicationName(u"Starter"_s);
    StarterApplication application(argc, argv);
    qmlRegisterSingletonInstance("Corvane", 1, 0, "App", &application);
    LKQmlRegister::registerLKQmlDataTypes();
    LKQmlRegister::registerLKQmlComponents();
    qmlRegisterType<GreetingController>("Starter", 1, 0, "GreetingController");
    return application.showWindow() ? QApplication::exec() : 1;
}

#include "main.moc"
