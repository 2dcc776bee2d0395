# Variant 3 of the tray dialog.
s/Dlg_MediaType: TYPE1 /Dlg_MediaType: TYPE3 /
s/ColorSetting: TYPE1 /ColorSetting: TYPE13 /
