#include "GalleryComponents.h"

#include <QFile>
#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace {

// "buttons/WButton"
QStringList files()
{
    static const QStringList list = QStringLiteral(GALLERY_COMPONENTS).split(u'|');
    return list;
}

QString familyOf(const QString &file)
{
    QString family = file.section(u'/', 0, 0);
    family[0] = family[0].toUpper();
    return family;
}

QString describe(const QVariant &value)
{
    if (value.metaType().flags().testFlag(QMetaType::PointerToQObject)) {
        const auto *object = value.value<QObject *>();
        return object ? QString::fromLatin1(object->metaObject()->className()).section("_QML"_L1, 0, 0) : u"null"_s;
    }
    return value.toString();
}

} // namespace

QStringList GalleryComponents::families()
{
    QStringList names;
    for (const QString &file : files())
        names << familyOf(file);
    names.removeDuplicates();
    return names;
}

QStringList GalleryComponents::components(const QString &family, const QString &containing) const
{
    QStringList names;
    for (const QString &file : files()) {
        const QString name = file.section(u'/', 1);
        if (familyOf(file) == family && name.contains(containing, Qt::CaseInsensitive)
            && QFile::exists(u":/Qml/%1Sample.qml"_s.arg(name))) {
            names << name;
            if (QFile::exists(u":/Qml/%1StatesSample.qml"_s.arg(name)))
                names << name + "States"_L1;
        }
    }
    names.sort();
    return names;
}

QVariantList GalleryComponents::properties(QObject *component) const
{
    if (!component)
        return {};
    const QMetaObject *base = component->metaObject();
    while (QByteArrayView(base->className()).contains("_QML"))
        base = base->superClass();
    QVariantList list;
    for (int i = base->propertyCount(); i < component->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = component->metaObject()->property(i);
        const QVariant value = property.read(component);
        list << QVariantMap{{u"name"_s, QString::fromLatin1(property.name())},
                            {u"type"_s, QString::fromLatin1(property.typeName())},
                            {u"value"_s, describe(value)},
                            {u"isWritable"_s, property.isWritable() && value.canConvert<QString>()}};
    }
    return list;
}

bool GalleryComponents::write(QObject *component, const QString &property, const QString &text) const
{
    if (!component)
        return false;
    const int index = component->metaObject()->indexOfProperty(property.toLatin1());
    if (index < 0)
        return false;
    const QMetaProperty metaProperty = component->metaObject()->property(index);
    QVariant value = text;
    if (metaProperty.metaType().id() != QMetaType::QVariant && !value.convert(metaProperty.metaType()))
        return false;
    return metaProperty.write(component, value);
}
