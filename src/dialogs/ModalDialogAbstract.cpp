#include "dialogs/ModalDialogAbstract.h"

#include "ui/ButtonBinding.h"

namespace vantrix::sdk::ui::dialogs {

ModalDialogAbstract::ModalDialogAbstract(QWidget& parent, Relevance relevance)
    : QtDialogAbstract(parent, std::move(relevance))
{
    setModal(true);
}

ModalDialogAbstract::~ModalDialogAbstract() = default;

void ModalDialogAbstract::setOkButton(QAbstractButton* button)
{
    m_okBinding = std::make_unique<propertybindings::ButtonBinding>(button, [this] { accept(); });
}

void ModalDialogAbstract::launch()
{
    if (!isVisible()) {
        init();
    }
    QtDialogAbstract::launch();
}

void ModalDialogAbstract::accept()
{
    if (submit()) {
        QtDialogAbstract::accept();
    }
}

} // namespace vantrix::sdk::ui::dialogs
