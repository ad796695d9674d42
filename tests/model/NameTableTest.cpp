#include "gello/model/NameTable.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "gello/model/Element.h"

using namespace gello;

// Against a plain map, through growth, wrap-around probe runs and deletions in the middle of runs.
TEST(NameTable, AgreesWithAMapThroughInsertsAndErasures) {
  std::vector<Ref<IRTTIElement>> Pool;
  for (int i = 0; i < 400; ++i)
    Pool.push_back(MakeRef<TRTTIElement>(u"n" + IntToStr(i % 200)));
  TNameTable Table;
  std::map<String, IRTTIElement*> Expected;
  std::mt19937 Random(7);
  for (int Step = 0; Step < 20000; ++Step) {
    IRTTIElement* Element = Pool[Random() % Pool.size()].get();
    const String Name = Element->GetName();
    if (Random() % 3 == 0) {
      Table.Erase(Name);
      Expected.erase(Name);
    } else {
      auto Before = Expected.find(Name);
      EXPECT_EQ(Table.Put(Element), Before == Expected.end() ? nullptr : Before->second);
      Expected[Name] = Element;
    }
    if (Step % 97 == 0) {
      for (int i = 0; i < 200; ++i) {
        const String Probe = u"n" + IntToStr(i);
        auto Want = Expected.find(Probe);
        ASSERT_EQ(Table.Find(Probe), Want == Expected.end() ? nullptr : Want->second) << Step;
      }
      ASSERT_EQ(Table.Count(), Expected.size());
    }
  }
  Table.Clear();
  EXPECT_FALSE(Table.Find(u"n1"));
  Table.Erase(u"n1");  // erasing from an empty table is harmless
  EXPECT_EQ(Table.Count(), 0u);
}
