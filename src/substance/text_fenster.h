// Logic of the text window frmQTextEdit: a title and a text of several lines, used for synonym
// lists and status reports. The view shows the text read-only.
#pragma once

#include <string>
#include <vector>

namespace quor {

class frmQTextEdit {
public:
  frmQTextEdit() = default;
  frmQTextEdit(std::string caption, std::string text) : Caption(std::move(caption)), Text(std::move(text)) {}

  // The text's lines, split at CR LF (a lone LF or CR ends a line too); a line end at the very end
  // makes no empty last line.
  std::vector<std::string> Zeilen() const;

  std::string Caption;
  std::string Text; // lines joined by CR LF
};

} // namespace quor
