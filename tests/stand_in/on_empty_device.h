#pragma once

#include <gtest/gtest.h>

#include "files.h"

class OnEmptyDevice : public testing::Test {
    const ScratchDirectory device_;
};
