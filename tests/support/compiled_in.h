// Saves the module's tables that a parameter data file changes, and restores them at the end. For tests and
// the fuzz target, which build more than once in a process.
#ifndef SUPPORT_COMPILED_IN_H
#define SUPPORT_COMPILED_IN_H

#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/default_settings.h"
#include "paramdata/input_slots.h"
#include "trays/media_type_lists.h"

#include <cstring>

template <typename Table>
struct Kept {
    explicit Kept(Table& original) : table(original) { memcpy(bytes, &table, sizeof(bytes)); }
    ~Kept() { Restore(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    void Restore() const { memcpy(&table, bytes, sizeof(bytes)); }
    bool Unchanged() const { return memcmp(&table, bytes, sizeof(bytes)) == 0; }

    Table& table;
    uint8_t bytes[sizeof(Table)];
};

struct CompiledInTables {
    void Restore() const {
        slots.Restore();
        settings.Restore();
        colors.Restore();
        property.Restore();
        colorDialog.Restore();
        trayDialog.Restore();
        columns.Restore();
    }
    bool Unchanged() const {
        return slots.Unchanged() && settings.Unchanged() && colors.Unchanged() && property.Unchanged()
               && colorDialog.Unchanged() && trayDialog.Unchanged() && columns.Unchanged();
    }

    Kept<decltype(inputSlots)> slots{inputSlots};
    Kept<OemDevmode> settings{defaultSettings};
    Kept<ColorTables> colors{colorTables};
    Kept<decltype(propertyTexts)> property{propertyTexts};
    Kept<decltype(colorDialogTexts)> colorDialog{colorDialogTexts};
    Kept<decltype(trayDialogTexts)> trayDialog{trayDialogTexts};
    Kept<decltype(mediaTypeColumns)> columns{mediaTypeColumns};
};

#endif
