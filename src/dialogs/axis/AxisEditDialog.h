#pragma once

#include "ui/QtDialogAbstract.h"

class QAbstractButton;

namespace vantrix::sdk::ui::dialogs {

/// What the axis dialog shows when it is opened.
enum DialogInitialization_e
{
    DialogInitialization_Last = 0,  ///< the axis and the tab that were edited last
    DialogInitialization_Picked = 1 ///< the axis, and the part of it, that the user picked
};

/// "Axis Details": everything about one axis of the active frame's plot. Edits are seen at once.
class AxisEditDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent. With
    /// nothing picked, or no axis, `DialogInitialization_Picked` does nothing more than the other.
    static AxisEditDialog& getInstance(QWidget& parent,
                                       DialogInitialization_e initialization = DialogInitialization_Last);

    /// When the dialog may be used.
    static Relevance relevance();

    ~AxisEditDialog() override;

private Q_SLOTS:
    void polarAxisClicked(QAbstractButton* button);
    void xyAxisClicked(QAbstractButton* button);
    void twoDAxisClicked(QAbstractButton* button);
    void threeDAxisClicked(QAbstractButton* button);
    void rangePage_currentChanged(int index);
    void on_plotTypeAxisStack_currentChanged(int index);

private:
    explicit AxisEditDialog(QWidget& parent);

    class AxisEditDialogImpl;
    std::unique_ptr<AxisEditDialogImpl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
