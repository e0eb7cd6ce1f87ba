#pragma once

#include <gtest/gtest.h>

#include "scratch_files.h"

class OnEmptyDevice : public testing::Test {
    const ScratchDirectory device_;
};
