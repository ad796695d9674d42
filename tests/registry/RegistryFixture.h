#pragma once
// A registry made for each test and freed after it, with its closing dump kept off the log.
#include <gtest/gtest.h>

#include "gello/foundation/Log.h"
#include "gello/registry/Registry.h"

namespace gello {

struct RegistryTest : testing::Test {
  void SetUp() override { RegisterInterfaces(); }
  void TearDown() override {
    TLogCapture Quiet;
    FinalizeOCLRegistry();
  }
};

}  // namespace gello
