#pragma once

#include "widgets/hmiwidget.h"
#include "widgets/widgetlibrary.h"

#include <gtest/gtest.h>

// The class registry is process-wide: each test of this fixture starts and ends with it empty.
struct EmptyRegistryTest : ::testing::Test {
    void SetUp() override { Clear(); }
    void TearDown() override { Clear(); }
    static void Clear()
    {
        CHmiWidget::RemoveAllRunTimeClass();
        ClearRegisteredWidgetLibs();
    }
};
