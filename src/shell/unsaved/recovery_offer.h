// What earlier runs of the editor have left unsaved, offered at the start.
#pragma once

#include <string>
#include <vector>

#include "base/notices.h"
#include "shell/unsaved/document_choice.h"
#include "shell/unsaved/recovery_file.h"

namespace vexa {

// What bringing back asks of the main window.
class RecoveryHost {
  public:
    virtual ~RecoveryHost() = default;
    // Opens the document in a window of its own and gives it the text; the recovery file is its own from then on.
    virtual void recover(const RecoveredText& recovered, const std::string& file) = 0;
    // Opens a file as any other.
    virtual void openFile(const std::string& path) = 0;
};

// A text that is just that of its file was saved at the last moment: its recovery file goes without a word. What is not
// brought back or deleted is offered at the next start again; a damaged file until the user deletes it.
class RecoveryOffer : public DocumentChoice {
  public:
    RecoveryOffer(std::vector<std::string> files, RecoveryHost& host, Notices& notices);

    const Texts& texts() const override;
    std::vector<std::string> rows() const override;
    bool mayAct(std::size_t button, std::size_t rows) override;
    void act(std::size_t button, std::size_t row) override;

  private:
    RecoveryHost& host_;
    Notices& notices_;
    std::vector<std::string> files_;
};

// Gives a document that has just been opened the text that was kept of it, as one command. A file that was another when
// the text was made of it counts as changed by another program.
void GiveText(TextDocument& document, const RecoveredText& recovered);

}  // namespace vexa
