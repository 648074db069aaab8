#pragma once

#include "registryscope.h"

#include <gtest/gtest.h>

// Each test of these fixtures starts with the built-in classes registered, or with none, and
// leaves the registry as it found it.
struct BuiltinRegistryTest : ::testing::Test {
    CRegistryScope registry;
};

struct EmptyRegistryTest : ::testing::Test {
    CRegistryScope registry{CRegistryScope::Start::Empty};
};
