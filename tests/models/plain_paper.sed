# Weight, colour and pre-punched media are off. A name fills its field, two sizes share a value, and the automatic source
# has the large-capacity tray's bin number. There are also eleven trays, one more than fit in the settings.
s/MediaWeight: Enable/MediaWeight: Disable/
s/MediaColor: Enable/MediaColor: Disable/
s/MediaPrePunched: Enable/MediaPrePunched: Disable/
s/{key: InTray2,      name: Tray 2,              value/{key: InTray2, name: Tray 2 of thirty-one characters, value/
s/{key: A5,              name: A5,\(.*\)value: 11/{key: A5,              name: A5 too,\1value: 9/
/^ALL_InTray/,/^$/s/{key: InTrayAuto,   name: Auto,                     value: 7/{key: InTrayAuto, name: Auto, value: 1000/
/^InTray:/,/^$/s/^\(.*\){key: InTrayManual.*/&\
\1{key: InTray6, name: Tray 6, value: 1006, enabled: 1, text: TRAY6}\
\1{key: InTray7, name: Tray 7, value: 1007, enabled: 1, text: TRAY7}\
\1{key: InTray8, name: Tray 8, value: 1008, enabled: 1, text: TRAY8}\
\1{key: InTray9, name: Tray 9, value: 1009, enabled: 1, text: TRAY9}/
