#include "app/VectorVariablesDialog.h"

#include "app/VariableBox.h"

#include <QDialogButtonBox>
#include <QFormLayout>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

struct Part
{
    const char* styleName;
    const char* text;
};

constexpr Part parts[] = {
    {"UVar", QT_TRANSLATE_NOOP("vantrix::app::VectorVariablesDialog", "Along &X:")},
    {"VVar", QT_TRANSLATE_NOOP("vantrix::app::VectorVariablesDialog", "Along &Y:")},
    {"WVar", QT_TRANSLATE_NOOP("vantrix::app::VectorVariablesDialog", "Along &Z:")},
};

} // namespace

VectorVariablesDialog::VectorVariablesDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(u"vectorVariables"_s);
    setWindowTitle(tr("Vector Variables"));
    auto* layout = new QFormLayout(this);
    for (const Part& part : parts) {
        auto* box = new VariableBox(toolbox::StyleValue("GlobalStream", part.styleName), -1, true, this);
        box->setObjectName(QLatin1StringView(part.styleName));
        box->refresh();
        layout->addRow(tr(part.text), box);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    layout->addRow(buttons);
}

bool VectorVariablesDialog::areAssigned()
{
    for (const Part& part : parts) {
        long variable = 0;
        toolbox::StyleValue("GlobalStream", part.styleName).getValue(&variable);
        if (variable > 0) {
            return true;
        }
    }
    return false;
}

bool VectorVariablesDialog::ensureAssigned(QWidget* parent)
{
    if (!areAssigned()) {
        VectorVariablesDialog(parent).exec();
    }
    return areAssigned();
}

} // namespace vantrix::app
