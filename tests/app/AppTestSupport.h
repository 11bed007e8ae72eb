#pragma once

#include "kernel/DataSet.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "sdk/AppLock.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest/QtTest>
#include <gtest/gtest.h>

namespace vantrix::test {

/* Settings of a user who never ran the program, and a kernel as it begins. */
class AppTest : public testing::Test
{
protected:
    AppTest()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("vxplot"));
        QCoreApplication::setApplicationName(QStringLiteral("vxplot"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        QSettings().clear();
        qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
        kernel::Kernel::instance().reset();
        kernel::Kernel::instance().mouseModes().set(MouseMode_Selector); // which a new layout leaves as it is
    }

    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir folder;
};

/* A legacy VTK file of four triangles around a point, with one variable. */
inline QByteArray smallVtkFile()
{
    return "# vtk DataFile Version 3.0\nsmall\nASCII\nDATASET UNSTRUCTURED_GRID\nPOINTS 5 double\n"
           "0 0 0  2 0 0  2 2 0  0 2 0  1 1 0.5\nCELLS 4 16\n3 0 1 4\n3 1 2 4\n3 2 3 4\n3 3 0 4\n"
           "CELL_TYPES 4\n5\n5\n5\n5\nPOINT_DATA 5\nSCALARS Height double 1\nLOOKUP_TABLE default\n0 0 0 0 0.5\n";
}

/* Lets deferred work, and what it defers again, be done. */
inline void settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
    }
}

} // namespace vantrix::test
