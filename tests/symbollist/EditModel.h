// A plain model of the editing rules, which tests compare with the manager.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

struct ModelList {
  std::string id, name, ids;
  bool operator==(const ModelList&) const = default;
};

using TextPairs = std::vector<std::pair<std::string, std::string>>;

class EditModel {
public:
  // Full ids that the service knows.
  std::set<std::string> known;
  // What the declaration of the file says.
  std::string encoding;

  std::vector<ModelList> lists;
  int index = 0;
  std::string file;
  int notified = 0; // TQSCall with code 40
  int updated = 0;  // with code 4
  bool operator==(const EditModel&) const = default;

  int Add(const std::string& id, const std::string& newId, const std::string& name,
          const std::string& ids, bool append, bool overwrite);
  int Delete(const std::string& id);
  int ReplaceIds(const TextPairs& pairs);
  void Set(std::vector<ModelList> copies);
  void Save();
  void Load();
  void UpdateSystem(const TextPairs& symbols, const TextPairs& names);

  int Remove(const std::string& id, int row);
  int Swap(const std::string& id, int first, int second);
  int Insert(const std::string& id, int row, std::string text, bool before, bool heading);
  int Replace(const std::string& id, int row, const std::string& text);

private:
  ModelList* Find(const std::string& id);
  bool Taken(const std::string& name) const;
  std::string Adjusted(std::string name) const;
  std::string Moved(const std::string& ids) const;
  std::vector<std::string> Tokens(const ModelList& list) const;
  std::vector<int> Rows(const std::vector<std::string>& tokens) const;
};
