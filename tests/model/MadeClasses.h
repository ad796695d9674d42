#pragma once
// A test fixture that keeps the classes a test makes and clears them at its end, breaking cycles.
#include <gtest/gtest.h>

#include <vector>

#include "gello/model/Class.h"

struct MadeClasses : testing::Test {
  std::vector<gello::Ref<gello::IRTTIClass>> Made;
  gello::Ref<gello::IRTTIClass> Class(const gello::String& Name,
                                      const gello::Ref<gello::IRTTIClass>& Ancestor = nullptr) {
    Made.push_back(gello::MakeRef<gello::TRTTIClass>(Name, Ancestor));
    return Made.back();
  }
  void TearDown() override {
    for (auto& C : Made)
      C->Clear();
  }
};
