#include "IWApplication.h"

#include "SvgImageProvider.h"
#include "WQmlEngine.h"
#include "WThemeUtils.h"

#include <QDebug>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {
constexpr auto ThemeModeKey = "ThemeMode"_L1;
}

IWApplication::IWApplication(int &argc, char **argv)
    : QApplication(argc, argv)
    , m_themeMode(QSettings().value(ThemeModeKey, u"default"_s).toString())
{
    loadColorSets();
}

IWApplication::~IWApplication()
{
    m_qmlEngine.reset(); // first: QML that ends may still ask for colours
}

QString IWApplication::getThemeMode() const
{
    return m_themeMode;
}

void IWApplication::setThemeMode(const QString &mode)
{
    if (mode == m_themeMode) {
        qDebug() << "The theme already is" << mode;
        return;
    }
    m_themeMode = mode;
    QSettings().setValue(ThemeModeKey, mode);
    loadColorSets();
    qDebug() << "setThemeMode: " << mode;
    Q_EMIT themeModeChanged();
}

WColorSet IWApplication::getColorSet(const QString &colorSetName, const QString &) const
{
    if (colorSetName.isEmpty())
        return {};
    const WColorSet *colorSet = m_colorSetIndex.value(colorSetName);
    if (!colorSet) {
        qWarning() << "ColorSet name does not exist! " << colorSetName;
        return {};
    }
    return *colorSet;
}

bool IWApplication::animationsDisabled()
{
    return false;
}

const std::unordered_map<std::string, WColorSet> &IWApplication::getColorSets() const
{
    return m_colorSets;
}

WQmlEngine *IWApplication::getQmlEngine() const
{
    if (!m_qmlEngine) {
        qDebug() << "[UILifecycle][Startup] Creating WQmlEngine.";
        m_qmlEngine.reset(new WQmlEngine(nullptr));
        // Creation on demand is no change that a caller can see; the hook may change the application.
        const_cast<IWApplication *>(this)->prepareQmlEngine(m_qmlEngine.get());
        m_qmlEngine->addImageProvider(u"svg"_s, new SvgImageProvider); // the engine takes it over
        qDebug() << "[UILifecycle][Startup] Finished creating WQmlEngine.";
    }
    return m_qmlEngine.get();
}

IWMovieProviderSource *IWApplication::getMovieProviderSource()
{
    return nullptr;
}

void IWApplication::prepareQmlEngine(WQmlEngine *) { }

void IWApplication::loadColorSets()
{
    m_colorSets = WThemeUtils::loadTheme(m_themeMode);
    m_colorSetIndex.clear();
    m_colorSetIndex.reserve(qsizetype(m_colorSets.size()));
    for (const auto &[name, colorSet] : m_colorSets)
        m_colorSetIndex.insert(QString::fromStdString(name), &colorSet);
}

void IWApplication::DeleteLater::operator()(WQmlEngine *engine) const
{
    engine->deleteLater();
    // No event loop runs any more: delete the engine, and what it releases later, while there is an application object.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
