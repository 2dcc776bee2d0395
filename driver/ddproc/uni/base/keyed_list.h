// Lists of records that end at the first record with an empty key: how they are walked and searched. A null
// list is an empty one.
#ifndef BASE_KEYED_LIST_H
#define BASE_KEYED_LIST_H

#include "base/rows.h"
#include "base/text.h"

// Where a record has its key.
template <typename Record>
auto KeyOf(const Record& record) -> decltype((record.key)) {
    return record.key;
}
template <typename Record>
auto KeyOf(const Record& record) -> decltype((record.name)) {
    return record.name;
}
template <typename Record>
auto KeyOf(const Record& record) -> decltype((record.head.key)) {
    return record.head.key;
}
template <typename Record>
auto KeyOf(const Record& record) -> decltype((record.feature.head.key)) {
    return record.feature.head.key;
}

// The records of the list.
template <typename Record>
Rows<Record> Listed(const Record* list) {
    size_t count = 0;
    while (list != nullptr && KeyOf(list[count])[0] != 0)
        ++count;
    return {list, count};
}

// The first record with this key, ASCII case ignored; null when there is none. An empty key is none.
template <typename Record>
Record* FindByKey(Record* list, const char* key) {
    for (; list != nullptr && KeyOf(*list)[0] != 0; ++list)
        if (SameText(KeyOf(*list), key))
            return list;
    return nullptr;
}

// The first record with this value in its head; null when there is none.
template <typename Record>
Record* FindByValue(Record* list, uint32_t value) {
    for (; list != nullptr && KeyOf(*list)[0] != 0; ++list)
        if (list->head.value == value)
            return list;
    return nullptr;
}

#endif
