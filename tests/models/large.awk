# A model of more than 32 times the size of the one that is read, in the form that `prmc dump` prints: each item of the lists that
# take any keys is there 60 times.
/^[A-Z]/ {
    isLarge = /^(PaperSize|OutPaperSize|MediaType|OutputTray|MediaWeight|MediaColor|Combination|Folding|HolePunch|Staple|Watermark|Collate|OutputMethod|OpHDD|OpFAXUnit|TabPaperPaperSize):/
}
{ print }
isLarge && match($0, /{key: [^,]*/) {
    key = substr($0, RSTART + 6, RLENGTH - 6)
    gsub(/"/, "", key)
    for (i = 2; i <= 60; ++i)
        print substr($0, 1, RSTART - 1) "{key: \"" substr(key, 1, 28) "_" i "\"" substr($0, RSTART + RLENGTH)
}
