#include "LKQmlRegister.h"

#include "ButtonBackground.h"
#include "ButtonContent.h"
#include "ButtonTemplate.h"
#include "Face.h"
#include "FocusReturn.h"
#include "FocusRing.h"
#include "FontTokens.h"
#include "ImageTemplate.h"
#include "LKButtonSize.h"
#include "LKButtonStyle.h"
#include "LKButtonType.h"
#include "LKColorData.h"
#include "LKEventData.h"
#include "LKIconButtonData.h"
#include "LKPillButtonData.h"
#include "LKQmlComponents.h"
#include "LKRoundButtonData.h"
#include "LabelTemplate.h"
#include "Logger.h"
#include "QmlUtils.h"
#include "RoundedPicture.h"
#include "SessionModel.h"
#include "SliderTemplate.h"
#include "TextTemplate.h"
#include "ToolTipTrigger.h"
#include "ToolTipUtils.h"
#include "ToolTips.h"
#include "UiConstants.h"
#include "WButtonContent.h"
#include "WButtonTemplate.h"
#include "WCheckBoxTemplate.h"
#include "WMovieItem.h"
#include "WMovieProvider.h"
#include "WQmlBalloon.h"
#include "WQmlHalfPill.h"
#include "WQmlPopupController.h"
#include "WTextFieldTemplate.h"

#include <QQmlEngine>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Uri = "LumakitQml";
constexpr auto PrivateUri = "LumakitQml.Private"; // what only the library's own components use

QUrl componentUrl(const char *name)
{
    return QUrl(u"qrc:/Qml/%1.qml"_s.arg(QLatin1StringView(name)));
}

template<typename T> void registerType(const char *name)
{
    qmlRegisterType<T>(Uri, 1, 0, name);
}

template<typename T> void registerSingleton(const char *name, const char *uri = Uri)
{
    qmlRegisterSingletonType<T>(uri, 1, 0, name, [](QQmlEngine *, QJSEngine *) -> QObject * { return new T; });
}

template<typename T> void registerUncreatable(const char *name)
{
    qmlRegisterUncreatableType<T>(Uri, 1, 0, name, u"%1 cannot be created from QML"_s.arg(QLatin1StringView(name)));
}

template<typename T> void registerPrivate(const char *name)
{
    qmlRegisterType<T>(PrivateUri, 1, 0, name);
}

// Whatever version of Qt a property of these has come with, the private types that are built on them have it.
template<typename... Bases> void registerBases()
{
    constexpr int AnyRevision = 254;
    (qmlRegisterRevision<Bases, AnyRevision>(PrivateUri, 1, 0), ...);
}

// The enum of a namespace of the same name.
template<typename Enum> void registerEnums(const char *name)
{
    const QMetaType type = QMetaType::fromType<Enum>();
    qmlRegisterUncreatableMetaObject(*type.metaObject(), Uri, 1, 0, name,
                                     u"%1 enum property."_s.arg(QLatin1StringView(name)));
    // QML that is compiled ahead of time finds the enum through a type of the namespace's name.
    type.registerType();
    QMetaType::registerNormalizedTypedef(name, type);
}

} // namespace

void LKQmlRegister::registerLKQmlDataTypes()
{
    registerType<WQmlBalloon>("WBalloon");
    registerType<WQmlHalfPill>("WHalfPill");
    registerType<WQmlPopupController>("WQmlPopupController");
    registerType<LKEventData>("LKEventData");
    registerType<WMovieProvider>("WMovieProvider");
    registerSingleton<QmlUtils>("Utils");
    registerSingleton<ToolTipUtils>("ToolTipUtils");
    registerSingleton<UiConstants>("UiConstants");
    registerSingleton<Logger>("Logger");
    registerUncreatable<LKPillButtonData>("LKPillButtonData");
    registerUncreatable<LKRoundButtonData>("LKRoundButtonData");
    registerUncreatable<LKIconButtonData>("LKIconButtonData");
    registerUncreatable<LKColorData>("LKColorData");
    registerEnums<LKButtonStyle::Style>("LKButtonStyle");
    registerEnums<LKButtonSize::Size>("LKButtonSize");
    registerEnums<LKButtonType::Type>("LKButtonType");
    qmlRegisterSingletonType(componentUrl("FontConstants"), Uri, 1, 0, "FontConstants");

    registerPrivate<ButtonBackground>("ButtonBackground");
    registerPrivate<ButtonContent>("ButtonContent");
    registerPrivate<ButtonTemplate>("ButtonTemplate");
    registerPrivate<Face>("Face");
    registerPrivate<FocusRing>("FocusRing");
    registerPrivate<ImageTemplate>("ImageTemplate");
    registerPrivate<LabelTemplate>("LabelTemplate");
    registerPrivate<RoundedPicture>("RoundedPicture");
    registerPrivate<SessionModel>("SessionModel");
    registerPrivate<SliderTemplate>("SliderTemplate");
    registerPrivate<TextTemplate>("TextTemplate");
    registerPrivate<ToolTipTrigger>("ToolTipTrigger");
    registerPrivate<WButtonContent>("WButtonContent");
    registerPrivate<WButtonTemplate>("WButtonTemplate");
    registerPrivate<WCheckBoxTemplate>("WCheckBoxTemplate");
    registerPrivate<WMovieItem>("WMovieItem");
    registerPrivate<WTextFieldTemplate>("WTextFieldTemplate");
    qmlRegisterAnonymousType<StateColor>(PrivateUri, 1);
    registerBases<QQuickItem, QQuickImageBase, QQuickImage, QQuickText, QQuickLabel, QQuickRectangle, QQuickControl,
                  QQuickAbstractButton, QQuickButton, QQuickCheckBox, QQuickTextInput, QQuickTextField, QQuickSlider>();
    registerSingleton<FocusReturn>("FocusReturn", PrivateUri);
    registerSingleton<FontTokens>("FontTokens", PrivateUri);
    registerSingleton<ToolTips>("ToolTips", PrivateUri);
}

void LKQmlRegister::registerLKQmlComponents()
{
    for (const char *name : LKQmlComponents)
        qmlRegisterType(componentUrl(name), Uri, 1, 0, name);
}
