// What the Output window and the Message window have in common: lines, a selected one, and the file that a line names.
#pragma once

#include <string>
#include <string_view>

#include "base/callback.h"
#include "base/list_rows.h"
#include "base/notices.h"
#include "external/error_line_parser.h"
#include "external/list_lines.h"
#include "external/source_document.h"

namespace vexa {

class LineList : public ListRows {
  public:
    LineList(FileOpener& opener, Notices& notices) : opener_(opener), notices_(notices) {}

    // The window is told from now on; none, no one is.
    void attach(ListView* view) { view_ = view; }

    std::size_t rowCount() const override { return lines_.size(); }
    std::string_view rowText(std::size_t row) const override { return lines_[row]; }
    RowKind rowKind(std::size_t row) const override;
    std::size_t longestRow() const override { return lines_.longest(); }
    std::optional<std::size_t> selectedRow() const override { return selected_; }
    void selectRow(std::size_t row) override;
    void clearRows() override;

    void AddLine(std::string_view text);
    // The lines with which the windows begin.
    void AddBanner();

  protected:
    // Adds the lines of a file and calls a function for each, until the list is full, which the user is then told.
    // False when the file cannot be opened.
    bool loadLines(const std::string& path, const Callback<void(std::string_view)>& added);
    // Adds a line without telling the window. False, and the user is told, when the list is full.
    bool addRow(std::string_view text);
    void addClosing(std::initializer_list<std::string_view> texts);
    // Opens the file that a name means, at a line counted from 1. Names without a directory are those of the base
    // directory. False when there is no such file.
    bool openAt(const std::string& fileName, std::int32_t lineNumber);
    std::string selectedText() const;
    void select(std::size_t row);
    void setBaseDirectory(std::string_view directory) { baseDirectory_ = directory; }
    void tell(std::string_view text) { notices_.status(text, false, false); }
    void show();

    // The name of the document that the rows are about, without directory; empty for none.
    const std::string& documentName() const { return documentName_; }
    void setDocumentName(std::string_view name) { documentName_ = name; }

    ErrorLineParser& parser() { return parser_; }
    ListView* view() const { return view_; }

  private:
    std::string pathOf(const std::string& fileName) const;

    FileOpener& opener_;
    Notices& notices_;
    ListView* view_ = nullptr;
    ListLines lines_;
    std::optional<std::size_t> selected_;
    std::string baseDirectory_;
    std::string documentName_;
    ErrorLineParser parser_;
    mutable ErrorLineParser painter_;  // asked while the parser's last result is still needed
};

}  // namespace vexa
