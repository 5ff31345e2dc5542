// The dialogs of the help viewer: the index, the choice among topics, and the text to find. They have no Help of their
// own, as it would take the viewer away from the help file that they are about.
#pragma once

#include <string>
#include <vector>

#include "framework/dialog.h"
#include "quickhelp/topics/help_browser.h"

namespace vexa {

// Keywords, and a field whose text chooses the first one that begins with it.
class HelpIndexDialog : public DialogFrameCL {
  public:
    explicit HelpIndexDialog(std::vector<topics::Keyword> keywords);

    // Accepted, the one that was chosen.
    const topics::Keyword& chosen() const { return keywords_[chosen_]; }

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void textTyped();

    std::vector<topics::Keyword> keywords_;
    std::size_t chosen_ = 0;
};

class HelpChoiceDialog : public DialogFrameCL {
  public:
    explicit HelpChoiceDialog(std::vector<topics::FoundTopic> found);

    const topics::FoundTopic& chosen() const { return found_[chosen_]; }

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    std::vector<topics::FoundTopic> found_;
    std::size_t chosen_ = 0;
};

class HelpFindDialog : public DialogFrameCL {
  public:
    explicit HelpFindDialog(std::string text);

    const std::string& findText() const { return text_; }

  protected:
    void onOpen() override;
    void onAccept() override;

  private:
    std::string text_;
};

}  // namespace vexa
