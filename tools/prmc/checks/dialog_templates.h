// The controls of the module's dialogs, as the resource scripts lay them out. Measures are dialog units: a
// quarter of the average letter in width.
#ifndef PRMC_CHECKS_DIALOG_TEMPLATES_H
#define PRMC_CHECKS_DIALOG_TEMPLATES_H

// Width of the control where it is widest; 0 when no dialog has it.
int WidestControl(int control);

// The drop-down list below the label; 0 when there is none.
int ListOfLabel(int label);

// Whether the dialog of this number has the control.
bool HasControl(int dialog, int control);

#endif
