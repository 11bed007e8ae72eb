#pragma once

#include <QDoubleValidator>
#include <QLocale>

class QObject;

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// The locale in which fields read and write numbers: the C locale, without group separators.
QLocale numberLocale();

/// Accepts integers from minimum to maximum, in the number locale.
QIntValidator* newIntValidator(int minimum, int maximum, QObject* parent);

/// Accepts numbers from minimum to maximum, in the number locale. A comma can be typed but is never acceptable: were it
/// swallowed, "3,14" would become 314 under the user's hands.
QDoubleValidator* newDoubleValidator(double minimum, double maximum, int decimals, QObject* parent);

} // namespace vantrix::sdk::ui::dialogs::propertybindings
