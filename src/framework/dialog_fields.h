// Binds the controls of a dialog to the fields of the model behind it: rows in tables that are shown and read alike.
//
//     constexpr CheckBox<Model> kBoxes[] = {{IDC_CAPTURE, &Model::capture}};
//     constexpr TextField<Model> kTexts[] = {{IDC_NAME, &Model::name, kNameLimit}};
//     ShowFields(dialog, model, kBoxes, kTexts);
#pragma once

#include <cstddef>
#include <string>

#include "framework/dialog.h"

namespace vexa {

template <class Model>
struct CheckBox {
    int control;
    bool Model::*value;

    void show(DialogFrameCL& dialog, const Model& model) const { dialog.setChecked(control, model.*value); }
    void read(const DialogFrameCL& dialog, Model& model) const { model.*value = dialog.isChecked(control); }
};

// An edit control. Its text is no longer than the limit, in characters.
template <class Model>
struct TextField {
    int control;
    std::string Model::*value;
    std::size_t limit;

    void show(DialogFrameCL& dialog, const Model& model) const {
        dialog.limitTextOf(control, limit);
        dialog.setTextOf(control, model.*value);
    }
    void read(const DialogFrameCL& dialog, Model& model) const { model.*value = dialog.textOf(control); }
};

// One of several radio buttons, which is checked when the field has the button's value.
template <class Model, class Value>
struct RadioButton {
    int control;
    Value Model::*value;
    Value meaning;

    void show(DialogFrameCL& dialog, const Model& model) const { dialog.setChecked(control, model.*value == meaning); }
    void read(const DialogFrameCL& dialog, Model& model) const {
        if (dialog.isChecked(control)) model.*value = meaning;
    }
};

template <class Model, class... Tables>
void ShowFields(DialogFrameCL& dialog, const Model& model, const Tables&... tables) {
    const auto show = [&](const auto& table) {
        for (const auto& row : table)
            row.show(dialog, model);
    };
    (show(tables), ...);
}

template <class Model, class... Tables>
void ReadFields(const DialogFrameCL& dialog, Model& model, const Tables&... tables) {
    const auto read = [&](const auto& table) {
        for (const auto& row : table)
            row.read(dialog, model);
    };
    (read(tables), ...);
}

// What a dialog does when a control tells something, such as BN_CLICKED.
template <class Dialog>
struct Notification {
    int control;
    UINT code;
    void (Dialog::*act)();
};

// False when no row fits.
template <class Dialog, class Table>
bool Dispatch(Dialog& dialog, const Table& rows, int control, UINT code) {
    for (const Notification<Dialog>& row : rows) {
        if (row.control != control || row.code != code) continue;
        (dialog.*row.act)();
        return true;
    }
    return false;
}

}  // namespace vexa
