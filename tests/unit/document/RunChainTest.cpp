#include "tests/support/Errors.h"
#include "tests/unit/document/RunSamples.h"

// What gives a change of the record away.
namespace host::samples {
namespace {

/// The three runs, after something was done to them.
template <class Change>
std::string Changed(Change change) {
  pugi::xml_document xml;
  xml.load_string(ThreeRuns().c_str());
  change(xml.child("Runs"));
  std::ostringstream text;
  xml.save(text, "", pugi::format_raw);
  return text.str();
}

pugi::xml_node RunAt(pugi::xml_node section, int number) {
  return section.find_child_by_attribute("Run", "Number", std::to_string(number).c_str());
}

/// All attributes and texts of the node and below it.
struct Parts : pugi::xml_tree_walker {
  std::vector<pugi::xml_attribute> attributes;
  std::vector<pugi::xml_node> texts, elements;

  explicit Parts(pugi::xml_node node) { node.traverse(*this); }
  bool begin(pugi::xml_node& node) override { return for_each(node); }
  bool for_each(pugi::xml_node& node) override {
    if (node.type() == pugi::node_element) elements.push_back(node);
    if (node.type() == pugi::node_pcdata) texts.push_back(node);
    for (const auto attribute : node.attributes()) attributes.push_back(attribute);
    return true;
  }
};

/// Another value that can be read as well.
std::string Another(pugi::xml_attribute attribute) {
  const std::string name = attribute.name(), value = attribute.value();
  if (name == "Simulated") return value == "0" ? "1" : "0";
  if (name == "End") return value == "lost" ? "stopped" : "lost";
  if (name == "By") return value == "tester" ? "operator" : "tester";
  if (name == "Tester") return value == "1" ? "2" : "1";
  if (name == "Elements") return value + " 99";
  if (name == "Leads" || name == "Number") return "9";
  return value + "1";
}

TEST(RunChain, DetectsAnyChangedAttribute) {
  pugi::xml_document original;
  original.load_string(ThreeRuns().c_str());
  const auto all = Parts(RunAt(original.child("Runs"), 2)).attributes.size();
  ASSERT_GT(all, 50U);
  for (std::size_t place = 0; place < all; ++place) {
    std::string what;
    const auto changed = Changed([&](pugi::xml_node section) {
      auto attribute = Parts(RunAt(section, 2)).attributes[place];
      what = attribute.name();
      attribute.set_value(Another(attribute).c_str());
    });
    const States wanted{what == "Before" ? "intact, gap" : "intact",
                        what == "Digest" ? "changed, gap" : "changed", "intact"};
    EXPECT_EQ(StatesIn(changed), wanted) << what;
  }
}

TEST(RunChain, DetectsAnyChangedText) {
  pugi::xml_document original;
  original.load_string(ThreeRuns().c_str());
  const auto all = Parts(RunAt(original.child("Runs"), 2)).texts.size();
  ASSERT_EQ(all, 6U);
  for (std::size_t place = 0; place < all; ++place) {
    EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
                auto text = Parts(RunAt(section, 2)).texts[place];
                text.set_value((std::string(text.value()) + "1").c_str());
              })),
              (States{"intact", "changed", "intact"}))
        << place;
  }
}

TEST(RunChain, DetectsARemovedAddedOrMovedElement) {
  pugi::xml_document original;
  original.load_string(ThreeRuns().c_str());
  const auto all = Parts(RunAt(original.child("Runs"), 2)).elements.size();
  const States shows{"intact", "changed", "intact"};
  for (std::size_t place = 1; place < all; ++place) {
    std::string what;
    const auto removed = Changed([&](pugi::xml_node section) {
      auto element = Parts(RunAt(section, 2)).elements[place];
      what = element.name();
      // A test that names a tester needs one.
      if (what != "Tester") element.parent().remove_child(element);
    });
    if (what != "Tester") {
      EXPECT_EQ(StatesIn(removed), shows) << "without " << what;
    }
    EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
                auto element = Parts(RunAt(section, 2)).elements[place];
                element.parent().insert_copy_after(element, element);
              })),
              shows)
        << "twice " << what;
  }
  EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
              auto run = RunAt(section, 2);
              run.append_move(run.child("Takes"));
            })),
            shows);
  // The same texts under other names, or in another place.
  EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
              RunAt(section, 2).child("Test").child("Said").set_name("Heard");
            })),
            shows);
  EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
              auto test = RunAt(section, 2).child("Test");
              test.child("Recorded").append_move(test.child("Judged"));
            })),
            shows);
  EXPECT_EQ(StatesIn(Changed([&](pugi::xml_node section) {
              RunAt(section, 2).child("Equipment").remove_attribute("Maker");
            })),
            shows);
}

TEST(RunChain, DetectsARemovedMovedOrRepeatedRun) {
  const auto without = [](int number) {
    return Changed([&](pugi::xml_node section) { section.remove_child(RunAt(section, number)); });
  };
  EXPECT_EQ(StatesIn(without(2)), (States{"intact, gap", "intact"}));
  EXPECT_EQ(StatesIn(without(3)), (States{"intact", "intact, gap"}));
  // Whatever an earlier run did, the later ones are decisive.
  EXPECT_EQ(StatesIn(without(1)), AllIntact(2));
  EXPECT_EQ(StatesIn(Changed([](pugi::xml_node section) {
              section.insert_move_before(RunAt(section, 2), RunAt(section, 1));
            })),
            (States{"intact, gap", "intact, gap", "intact"}));
  EXPECT_EQ(StatesIn(Changed([](pugi::xml_node section) { section.append_copy(RunAt(section, 3)); })),
            (States{"intact", "intact", "intact, gap", "intact"}));
  EXPECT_EQ(StatesIn(Changed([](pugi::xml_node section) { section.remove_attribute("Last"); })),
            (States{"intact", "intact", "intact, gap"}));
}

TEST(RunChain, DetectsAMissingRunAfterLaterRuns) {
  for (const int missing : {2, 3}) {
    auto runs =
        Loaded(Changed([&](pugi::xml_node section) { section.remove_child(RunAt(section, missing)); }));
    Add(runs, MakeRun("Dan"));
    auto again = Loaded(TextOf(runs));
    Add(again, MakeRun("Eve"));
    const auto states = StatesIn(TextOf(again));
    EXPECT_EQ(std::count(states.begin(), states.end(), "intact, gap"), 1) << missing;
    EXPECT_EQ(states.at(static_cast<std::size_t>(missing) - 2), "intact, gap") << missing;
    for (std::size_t place = 1; place < again.All().size(); ++place)
      EXPECT_GT(again.All()[place].number, again.All()[place - 1].number);
  }
}

TEST(RunChain, IgnoresLayoutAndComments) {
  EXPECT_EQ(StatesIn(Changed([](pugi::xml_node) {})), AllIntact(3));
  EXPECT_EQ(StatesIn(Changed([](pugi::xml_node section) {
              for (auto element : Parts(RunAt(section, 2)).elements) {
                element.parent().insert_child_before(pugi::node_comment, element).set_value("looked at");
                if (element.first_child().type() == pugi::node_element)
                  element.prepend_child(pugi::node_pcdata).set_value("\n\t  ");
              }
            })),
            AllIntact(3));
}

// A later program may say more of a run; it stays, and shows.
TEST(RunChain, KeepsUnknownXml) {
  const auto text = Changed([](pugi::xml_node section) {
    section.append_attribute("Room") = "7";
    section.append_child("Weather").append_attribute("Is") = "fine";
    auto run = RunAt(section, 2);
    run.append_attribute("Signed") = "yes";
    run.child("Test").append_child("Photo").text() = "a.png";
    run.prepend_child(pugi::node_comment).set_value("looked at");
  });
  auto runs = Loaded(text);
  EXPECT_EQ(StatesIn(text), (States{"intact", "changed", "intact"}));
  Add(runs, MakeRun("Dan"));
  const auto saved = TextOf(runs);
  for (const auto* part : {"Room=\"7\"", "<Weather Is=\"fine\" />", "Signed=\"yes\"", "<Photo>a.png</Photo>",
                           "<!--looked at-->"})
    EXPECT_TRUE(support::Holds(saved, part));
  EXPECT_EQ(StatesIn(saved), (States{"intact", "changed", "intact", "intact"}));
  EXPECT_EQ(TextOf(Loaded(saved)), saved) << "the same bytes";
}

}  // namespace
}  // namespace host::samples
