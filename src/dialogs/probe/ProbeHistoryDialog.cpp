#include "dialogs/probe/ProbeHistoryDialog.h"

#include "api/VtxUtil.h"
#include "dialogs/DialogInstance.h"
#include "dialogs/probe/ProbeHistory.h"
#include "dialogs/probe/ProbeTables.h"
#include "ui/LaunchHelpAction.h"
#include "ui/TableCopyHandler.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrix::sdk::ui::dialogs {

class ProbeHistoryDialog::Impl
{
public:
    explicit Impl(ProbeHistoryDialog& dialog);

    QString tableText() const { return m_copyHandler->text(); }

private:
    void buildForm();
    QPushButton* addAction(QHBoxLayout& row, QString const& text, char const* name);
    std::vector<int> selectedRows() const;
    void updateButtons();
    void compare();
    void showDifferences(bool isShown);
    void probeAgain();
    void remove();
    void exportTable();

    ProbeHistoryDialog& m_dialog;
    ProbeHistory& m_history = ProbeHistory::getInstance();
    QSplitter* m_splitter;
    QTableView* m_table;
    QLabel* m_comparison;
    QTableWidget* m_differences;
    common::TableCopyHandler* m_copyHandler;
    QPushButton* m_probeAgain = nullptr;
    QPushButton* m_remove = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_export = nullptr;
};

ProbeHistoryDialog::Impl::Impl(ProbeHistoryDialog& dialog)
    : m_dialog(dialog)
    , m_splitter(new QSplitter(Qt::Vertical, &dialog))
    , m_table(new QTableView(&dialog))
    , m_comparison(new QLabel(&dialog))
    , m_differences(new QTableWidget(0, 4, &dialog))
    , m_copyHandler(new common::TableCopyHandler(m_table))
{
    buildForm();
    auto const update = [this] {
        updateButtons();
        compare();
    };
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, &dialog, update);
    connect(&m_history, &QAbstractItemModel::rowsInserted, &dialog, [this, update] {
        m_table->resizeColumnsToContents();
        m_table->scrollToBottom();
        update();
    });
    connect(&m_history, &QAbstractItemModel::rowsRemoved, &dialog, update);
    connect(&m_history, &QAbstractItemModel::dataChanged, &dialog, update);
    update();
}

QPushButton* ProbeHistoryDialog::Impl::addAction(QHBoxLayout& row, QString const& text, char const* name)
{
    auto* const button = new QPushButton(text, &m_dialog);
    button->setObjectName(QLatin1String(name));
    row.addWidget(button);
    return button;
}

void ProbeHistoryDialog::Impl::buildForm()
{
    m_table->setObjectName(QStringLiteral("probeHistory_tableView"));
    m_table->setModel(&m_history);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->resizeColumnsToContents();
    m_comparison->setObjectName(QStringLiteral("probeHistory_comparison_label"));
    m_comparison->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_differences->setObjectName(QStringLiteral("probeHistory_differences_tableWidget"));
    m_differences->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_differences->setWordWrap(false);
    m_differences->setAlternatingRowColors(true);
    m_differences->verticalHeader()->hide();
    m_differences->horizontalHeader()->setStretchLastSection(true);
    m_differences->setContextMenuPolicy(Qt::ActionsContextMenu);
    new common::TableCopyHandler(m_differences);

    auto* const below = new QWidget(&m_dialog);
    auto* const belowLayout = new QVBoxLayout(below);
    belowLayout->setContentsMargins(0, 0, 0, 0);
    belowLayout->addWidget(m_comparison);
    belowLayout->addWidget(m_differences);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_table);
    m_splitter->addWidget(below);
    m_splitter->setStretchFactor(0, 2);
    m_splitter->setStretchFactor(1, 1);

    auto* const actions = new QHBoxLayout;
    m_probeAgain = addAction(*actions, tr("Probe &Again"), "probeHistory_probeAgain_pushButton");
    m_probeAgain->setToolTip(tr("Probes at the same places of the plot as it is now"));
    m_remove = addAction(*actions, tr("&Remove"), "probeHistory_remove_pushButton");
    m_remove->setToolTip(tr("Removes the selected probes"));
    actions->addStretch();
    m_copy = addAction(*actions, tr("&Copy"), "probeHistory_copy_pushButton");
    m_export = addAction(*actions, tr("&Export..."), "probeHistory_export_pushButton");
    connect(m_probeAgain, &QPushButton::clicked, &m_dialog, [this] { probeAgain(); });
    connect(m_remove, &QPushButton::clicked, &m_dialog, [this] { remove(); });
    connect(m_copy, &QPushButton::clicked, m_copyHandler, &common::TableCopyHandler::copyToClipboard);
    connect(m_export, &QPushButton::clicked, &m_dialog, [this] { exportTable(); });

    auto* const buttonBox = new QDialogButtonBox(QDialogButtonBox::Close, &m_dialog);
    buttonBox->setObjectName(QStringLiteral("buttonBox"));
    auto* const layout = new QVBoxLayout(&m_dialog);
    layout->addWidget(m_splitter, 1);
    layout->addLayout(actions);
    layout->addWidget(buttonBox);
    m_dialog.resize(720, 540);
    m_dialog.openBesidePlot();
}

std::vector<int> ProbeHistoryDialog::Impl::selectedRows() const
{
    std::vector<int> rows;
    for (QModelIndex const& index : m_table->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ProbeHistoryDialog::Impl::updateButtons()
{
    bool const hasRows = m_history.rowCount() > 0;
    m_probeAgain->setEnabled(hasRows);
    m_copy->setEnabled(hasRows);
    m_export->setEnabled(hasRows);
    m_remove->setEnabled(!selectedRows().empty());
}

void ProbeHistoryDialog::Impl::showDifferences(bool isShown)
{
    if (m_differences->isHidden() != isShown) {
        return;
    }
    m_differences->setVisible(isShown);
    int const height = m_splitter->height();
    m_splitter->setSizes(isShown ? QList<int>{3 * height / 5, 2 * height / 5} : QList<int>{height, 0});
}

void ProbeHistoryDialog::Impl::compare()
{
    m_differences->setRowCount(0);
    std::vector<int> const rows = selectedRows();
    showDifferences(rows.size() == 2);
    if (rows.size() != 2) {
        m_comparison->setText(m_history.rowCount() < 2 ? tr("Probes of the plot are listed here as they are made.")
                                                       : tr("Select two probes to compare them."));
        return;
    }
    ProbeRecord const& first = m_history.record(rows[0]);
    ProbeRecord const& second = m_history.record(rows[1]);
    std::optional<double> const distance = first.distanceTo(second);
    m_comparison->setText(distance ? tr("Distance: %1").arg(probetables::exactText(*distance))
                                   : tr("These probes have no distance: their coordinates are not the same lengths."));
    m_differences->setHorizontalHeaderLabels(
        {tr("Variable"), tr("Probe %1").arg(first.number), tr("Probe %1").arg(second.number), tr("Difference")});
    for (QString const& variable : m_history.variables()) {
        auto const one = first.values.find(variable);
        auto const other = second.values.find(variable);
        if (one == first.values.end() || other == second.values.end()) {
            continue;
        }
        int const row = m_differences->rowCount();
        m_differences->insertRow(row);
        QStringList const cells = {variable, probetables::exactText(one->second), probetables::exactText(other->second),
                                   probetables::exactText(other->second - one->second)};
        for (int column = 0; column < cells.size(); ++column) {
            m_differences->setItem(row, column, new QTableWidgetItem(cells[column]));
        }
    }
    m_differences->resizeColumnsToContents();
}

void ProbeHistoryDialog::Impl::probeAgain()
{
    auto const [probed, lost] = m_history.probeAgain();
    if (probed < m_history.rowCount() || lost > 0) {
        QString const text = tr("%1 of %2 probes were made again. Of the others the data are not shown in the active "
                                "frame, the zone is gone, or the position is outside of the data now; they keep their "
                                "values.")
                                 .arg(probed - lost)
                                 .arg(m_history.rowCount());
        VtxUtilDialogMessageBox(text.toUtf8().constData(), MessageBox_Information);
    }
}

void ProbeHistoryDialog::Impl::remove()
{
    m_history.remove(selectedRows());
}

void ProbeHistoryDialog::Impl::exportTable()
{
    QString const file = QFileDialog::getSaveFileName(&m_dialog, tr("Export Probes"), QStringLiteral("probes.txt"),
                                                      tr("Text parted by tabs (*.txt *.tsv);;All files (*)"));
    if (file.isEmpty()) {
        return;
    }
    QString const problem = m_dialog.exportTo(file);
    if (!problem.isEmpty()) {
        VtxUtilDialogErrMsg(problem.toUtf8().constData());
    }
}

ProbeHistoryDialog& ProbeHistoryDialog::getInstance(QWidget& parent)
{
    return dialogInstance<ProbeHistoryDialog>([&parent] { return new ProbeHistoryDialog(parent); });
}

ProbeHistoryDialog::ProbeHistoryDialog(QWidget& parent)
    : QtDialogAbstract(parent, nullptr)
    , m_impl(std::make_unique<Impl>(*this))
{
    setObjectName(QStringLiteral("ProbeHistory"));
    setWindowTitle(tr("Probe History"));
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("probe_history.html"), this));
}

ProbeHistoryDialog::~ProbeHistoryDialog() = default;

QString ProbeHistoryDialog::exportTo(QString const& name) const
{
    QSaveFile file(name);
    QByteArray const text = m_impl->tableText().toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return tr("The probes could not be written to \"%1\": %2.").arg(name, file.errorString());
    }
    return {};
}

} // namespace vantrix::sdk::ui::dialogs
