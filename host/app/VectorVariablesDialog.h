#pragma once

#include <QDialog>

namespace vantrix::app {

class VariableBox;

/* Asks which variables make up the vectors. Choices act at once. */
class VectorVariablesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit VectorVariablesDialog(QWidget* parent);

    /* Whether the active frame has variables for at least one part of its vectors. */
    static bool areAssigned();

    /* Asks where that is not so; whether it is so then. */
    static bool ensureAssigned(QWidget* parent);
};

} // namespace vantrix::app
