#include "app/ProgramSettings.h"

#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/StyleStore.h"

#include <QSettings>

namespace vantrix::app {

namespace {

using kernel::StyleData;
using kernel::StyleStore;

const auto group = QStringLiteral("ProgramStyle");

QVariant toSetting(const StyleData& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        return QString::fromStdString(*text);
    }
    const auto* integer = std::get_if<long>(&value);
    return integer ? QVariant(static_cast<qlonglong>(*integer)) : QVariant(std::get<double>(value));
}

/* A settings file holds texts: what they mean depends on the value that they are for. */
StyleData fromSetting(const QVariant& setting, kernel::StyleType type)
{
    switch (type) {
    case kernel::StyleType::String:
        return setting.toString().toStdString();
    case kernel::StyleType::Double:
        return setting.toDouble();
    default:
        return static_cast<long>(setting.toLongLong());
    }
}

} // namespace

void ProgramSettings::read(StyleStore& style)
{
    QSettings settings;
    settings.beginGroup(group);
    std::vector<StyleStore::Stored> values;
    for (const QString& path : settings.allKeys()) {
        const long entry = style.entry(path.toStdString().c_str());
        if (entry < 0 || kernel::styleDescription(entry).scope != kernel::StyleScope::Process) {
            continue;
        }
        StyleData value = fromSetting(settings.value(path), kernel::styleDescription(entry).type);
        if (kernel::checkStyleValue(entry, value).code == SetValueReturnCode_Ok) {
            values.push_back({.entry = entry, .value = std::move(value)});
        }
    }
    style.fillScope(StyleStore::processScope, values);
}

void ProgramSettings::write(const StyleStore& style)
{
    QSettings settings;
    settings.beginGroup(group);
    settings.remove(QString());
    for (const StyleStore::Stored& stored : style.storedValues(StyleStore::processScope)) {
        settings.setValue(QString::fromStdString(kernel::stylePath(stored.entry)), toSetting(stored.value));
    }
}

} // namespace vantrix::app
