#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    // CTest lists the tests before it sets their environment, and an application may find no display then.
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
