#pragma once

#include "support/RecordingHost.h"
#include "support/UserInput.h"

#include <gmock/gmock.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

namespace vantrix::test {

/// A fresh recording host, a window for dialogs to belong to, and settings of its own.
class DialogTest : public testing::Test
{
protected:
    DialogTest()
    {
        host.reset();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    }

    RecordingHost& host = RecordingHost::instance();
    QWidget parent;

private:
    QTemporaryDir m_settings;
};

} // namespace vantrix::test
