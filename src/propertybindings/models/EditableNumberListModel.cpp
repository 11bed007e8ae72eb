#include "propertybindings/models/EditableNumberListModel.h"

#include "propertybindings/PlainText.h"

#include <optional>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

EditableNumberListModel::EditableNumberListModel(Rows rows, double minimum, double maximum, std::string noun)
    : PremappedListModel<double>(std::move(rows))
    , m_minimum(minimum)
    , m_maximum(maximum)
    , m_noun(std::move(noun))
{}

std::string EditableNumberListModel::getStrForEdit(int row) const
{
    return plainText(get(row)).toStdString();
}

bool EditableNumberListModel::setEditedItem(std::string const& text, int /*row*/) const
{
    QString const typed = QString::fromStdString(text).trimmed();
    std::optional<double> value;
    for (int row = 0; row < size() && !value; ++row) {
        if (typed.compare(QString::fromStdString(getStr(row)), Qt::CaseInsensitive) == 0) {
            value = get(row);
        }
    }
    if (!value) {
        bool isNumber = false;
        double const number = typed.toDouble(&isNumber); // QString reads in the C locale
        // Written so that NaN fails.
        if (!isNumber || !(number >= m_minimum && number <= m_maximum)) {
            return false;
        }
        value = number;
    }
    m_valueEntered(*value);
    return true;
}

std::string EditableNumberListModel::expectedText() const
{
    return m_noun + " from " + plainText(m_minimum).toStdString() + " to " + plainText(m_maximum).toStdString();
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
