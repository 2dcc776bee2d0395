# Variant 2 of the tray dialog and variant A of the colour dialogs.
s/Dlg_MediaType: TYPE1 /Dlg_MediaType: TYPE2 /
s/ColorSetting: TYPE1 /ColorSetting: TYPE3 /
