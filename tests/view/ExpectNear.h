#pragma once

#include <QPointF>

#include <gtest/gtest.h>

inline void expectNear(QPointF found, QPointF expected)
{
    EXPECT_NEAR(found.x(), expected.x(), 1e-9);
    EXPECT_NEAR(found.y(), expected.y(), 1e-9);
}
