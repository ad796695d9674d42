#pragma once
// A global scope whose System classes the value objects answer as their types.
#include <gtest/gtest.h>

#include "gello/model/Globals.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

struct SystemClassesTest : testing::Test {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  void SetUp() override { SetOCLSystemClasses(*Globals); }
  void TearDown() override {
    ClearOCLSystemClasses();
    Globals->Clear();
  }
};

}  // namespace gello
