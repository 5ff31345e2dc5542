#include "ui/help/viewer_dialogs.h"

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr std::size_t kTextLimit = 100;  // characters

}  // namespace

// ---- index -------------------------------------------------------------------------------------------------------

HelpIndexDialog::HelpIndexDialog(std::vector<topics::Keyword> keywords)
    : DialogFrameCL(IDD_HELP_INDEX), keywords_(std::move(keywords)) {}

void HelpIndexDialog::onOpen() {
    std::vector<std::string> texts;
    for (const topics::Keyword& keyword : keywords_)
        texts.emplace_back(keyword.text);
    fillList(IDC_HELP_KEYWORDS, texts);
    limitTextOf(IDC_HELP_TEXT, kTextLimit);
    moveListFrom(IDC_HELP_TEXT, IDC_HELP_KEYWORDS);
    enable(IDOK, !texts.empty());
    if (!texts.empty()) chooseRow(IDC_HELP_KEYWORDS, 0);
}

void HelpIndexDialog::onControl(int number, UINT notification) {
    static constexpr Notification<HelpIndexDialog> kRows[] = {
        {IDC_HELP_TEXT, EN_CHANGE, &HelpIndexDialog::textTyped},
        {IDC_HELP_KEYWORDS, LBN_DBLCLK, &HelpIndexDialog::onAccept},
    };
    Dispatch(*this, kRows, number, notification);
}

void HelpIndexDialog::textTyped() {
    const std::string text = textOf(IDC_HELP_TEXT);
    if (!text.empty())
        SendMessageA(control(IDC_HELP_KEYWORDS), LB_SELECTSTRING, static_cast<WPARAM>(-1),
                     reinterpret_cast<LPARAM>(text.c_str()));
}

void HelpIndexDialog::onAccept() {
    const auto row = chosenRowOf(IDC_HELP_KEYWORDS);
    if (!row || *row >= keywords_.size()) return;
    chosen_ = *row;
    close(true);
}

// ---- choice ------------------------------------------------------------------------------------------------------

HelpChoiceDialog::HelpChoiceDialog(std::vector<topics::FoundTopic> found)
    : DialogFrameCL(IDD_HELP_CHOICE), found_(std::move(found)) {}

void HelpChoiceDialog::onOpen() {
    std::vector<std::string> titles;
    for (const topics::FoundTopic& topic : found_)
        titles.push_back(topic.title.empty() ? std::string(LoadText(TextId::HelpUntitledTopic)) : topic.title);
    fillList(IDC_HELP_TOPICS, titles);
    chooseRow(IDC_HELP_TOPICS, 0);
}

void HelpChoiceDialog::onControl(int number, UINT notification) {
    static constexpr Notification<HelpChoiceDialog> kRows[] = {
        {IDC_HELP_TOPICS, LBN_DBLCLK, &HelpChoiceDialog::onAccept},
    };
    Dispatch(*this, kRows, number, notification);
}

void HelpChoiceDialog::onAccept() {
    const auto row = chosenRowOf(IDC_HELP_TOPICS);
    if (!row || *row >= found_.size()) return;
    chosen_ = *row;
    close(true);
}

// ---- find --------------------------------------------------------------------------------------------------------

HelpFindDialog::HelpFindDialog(std::string text) : DialogFrameCL(IDD_HELP_FIND), text_(std::move(text)) {}

void HelpFindDialog::onOpen() {
    limitTextOf(IDC_HELP_TEXT, kTextLimit);
    setTextOf(IDC_HELP_TEXT, text_);
    focusOn(IDC_HELP_TEXT);
}

void HelpFindDialog::onAccept() {
    text_ = textOf(IDC_HELP_TEXT);
    if (!text_.empty()) close(true);
}

}  // namespace vexa
