// The "Color Setup" dialog.
#pragma once

#include "base/callback.h"
#include "language/colour_setup_model.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/row_painter.h"

namespace vexa {

class ColourSetupDialog : public EditorDialog {
  public:
    // Shows the colours being chosen in the open documents: called after every change.
    using Preview = Callback<void(const ColourTable&)>;

    ColourSetupDialog(ConfigStore& store, const ColourTable& inEffect, const FontDetails& font, Preview preview);

    const ColourSetupModel& model() const { return model_; }

  protected:
    void onOpen() override;
    void onControl(int control, UINT notification) override;
    bool onDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void choosePreset();
    void chooseElement();
    void chooseColour();
    void switchHighlighting();
    void showChoice();
    void drawSample(const DRAWITEMSTRUCT& item);

    const FontDetails& font_;
    const Preview preview_;
    ColourSetupModel model_;
    DisplayColours sampleColours_;
    RowPainter painter_;
};

}  // namespace vexa
