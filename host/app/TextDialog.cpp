#include "app/TextDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualLines = 4;
constexpr int usualColumns = 40;

} // namespace

TextDialog::TextDialog(const QString& title, QWidget* parent)
    : QDialog(parent)
    , m_edit(new QPlainTextEdit(this))
{
    setObjectName(u"textDialog"_s);
    setWindowTitle(title);
    m_edit->setObjectName(u"textWords"_s);
    m_edit->setTabChangesFocus(true);
    const QFontMetrics metrics = m_edit->fontMetrics();
    m_edit->setMinimumSize(metrics.averageCharWidth() * usualColumns, metrics.lineSpacing() * usualLines + 16);
    auto* label = new QLabel(tr("&Text:"), this);
    label->setBuddy(m_edit);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_edit);
    layout->addWidget(buttons);
    const auto* enter = new QShortcut(Qt::CTRL | Qt::Key_Return, this);
    connect(enter, &QShortcut::activated, m_ok, &QPushButton::click);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_edit, &QPlainTextEdit::textChanged, this, &TextDialog::update);
    update();
}

QString TextDialog::text() const
{
    return m_edit->toPlainText();
}

void TextDialog::setText(const QString& text)
{
    m_edit->setPlainText(text);
    m_edit->selectAll();
}

void TextDialog::update()
{
    m_ok->setEnabled(!text().trimmed().isEmpty());
}

} // namespace vantrix::app
