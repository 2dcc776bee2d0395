# The second kind of tray dialog, and the colour dialogs' variant A.
s/Dlg_MediaType: TYPE1 /Dlg_MediaType: TYPE2 /
s/ColorSetting: TYPE1 /ColorSetting: TYPE3 /
