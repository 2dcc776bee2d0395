# Nothing is known of weight, colour and holes. A name fills its field, two sizes share a value, and the
# automatic source has the large-capacity tray's bin number.
s/MediaWeight: Enable/MediaWeight: Disable/
s/MediaColor: Enable/MediaColor: Disable/
s/MediaPrePunched: Enable/MediaPrePunched: Disable/
s/{key: InTray2,      name: Tray 2,              value/{key: InTray2, name: Tray 2 of thirty-one characters, value/
s/{key: A5,              name: A5,\(.*\)value: 11/{key: A5,              name: A5 too,\1value: 9/
/^ALL_InTray/,/^$/s/{key: InTrayAuto,   name: Auto,                     value: 7/{key: InTrayAuto, name: Auto, value: 1000/
