// Random groups, members, ids and pushes, for both the service and the model.
#pragma once

#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tests/groups/GroupModel.h"
#include "tests/groups/GroupRecords.h"

class RandomGroups : public StandInTest {
protected:
  RandomGroups() {
    standin::RecordCalls(false);
    ChangeService();
  }

  template <size_t N> const char* Pick(const char* const (&texts)[N]) { return texts[Random(N)]; }
  size_t Random(size_t below) { return random_() % below; }
  int Index() { return static_cast<int>(Random(14)) - 1; }

  int Type() {
    constexpr int types[] = {1, 2, 7, 8, 21, 50, 101, 200, 201, 0, 202};
    return types[Random(std::size(types))];
  }
  std::string Id() {
    if (Random(40) == 0)
      return Pick({"", "0123456789abcdef", "0123456789ABCDEFG", "a,b", "none"});
    return std::string(Pick({"g", "G"})) + std::to_string(Random(24));
  }
  std::string Asked() { return (Random(4) == 0 ? Pick({"x,", ",", "x,y,"}) : "") + Id(); }
  std::string Name() {
    return Random(20) == 0 ? std::string(60, 'n') : "name" + std::to_string(Random(1000));
  }

  std::vector<GroupInfo> Records(int type, size_t most, bool withSubs) {
    std::vector<GroupInfo> records;
    for (size_t n = Random(most); n > 0; --n)
      records.push_back(groups::Record(type, Id(), Name(), withSubs && Random(2) == 0));
    for (GroupInfo& record : records)
      if (record.szID[0] == '\0')
        record.bHasSubGroup = 0; // an empty id would ask for the first level again
    return records;
  }
  void Answer(int type, const std::string& parent, const std::vector<GroupInfo>& records) {
    groups::Answer(type, parent, records);
    model.service.groups[{type, parent}] = records;
  }
  // New groups and members for every type; what was fetched before stays.
  void ChangeService() {
    for (const int type : {1, 2, 7, 8, 21, 50, 101, 200, 201}) {
      const std::vector<GroupInfo> top = Records(type, 30, true);
      Answer(type, "", top);
      for (const GroupInfo& group : top) {
        if (group.szID[0] != '\0')
          Answer(type, group.szID, Records(type, 25, false));
      }
      for (int i = 0; i < 24; ++i)
        ChangeMembers(type, std::string(Pick({"g", "G"})) + std::to_string(i));
    }
  }
  void ChangeMembers(int type, const std::string& id) {
    std::vector<const char*> ids;
    for (size_t n = Random(4); n > 0; --n)
      ids.push_back(Pick({"2330.TW", "2317.TW", "6488.TE", "AAPL.NASD"}));
    groups::AnswerMembers(type, id, ids);
    model.service.members[{type, id}] = {ids.begin(), ids.end()};
  }

  std::vector<CGroupSet> Sets() {
    std::vector<CGroupSet> sets;
    for (size_t n = Random(4); n > 0; --n) {
      sets.push_back(groups::Set(Type(), Id().c_str(), Name().c_str()));
      for (size_t k = Random(5); k > 0; --k)
        sets.back().subGroups.emplace_back(Id().c_str(), Name().c_str());
    }
    return sets;
  }

  std::mt19937 random_{31};
  groupmodel::Model model;
};
