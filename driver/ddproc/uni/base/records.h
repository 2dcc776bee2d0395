// The records of the public interface under the names that the module uses.
#ifndef BASE_RECORDS_H
#define BASE_RECORDS_H

#include "telmar_d.h"

using ItemHead = TelmarItemHead;
using ItemRecord = TelmarItemRecord;
using TextItemRecord = TelmarTextItemRecord;
using CompactItemRecord = TelmarCompactItemRecord;
using FinishingItemRecord = TelmarFinishingItemRecord;
using InputSlotRecord = TelmarInputSlotRecord;
using TrayRowRecord = TelmarTrayRowRecord;
using ResolutionRecord = TelmarResolutionRecord;
using TabPaperRecord = TelmarTabPaperRecord;
using CollateRecord = TelmarCollateRecord;
using OutputPaperSizeRecord = TelmarOutputPaperSizeRecord;
using PaperSizeRecord = TelmarPaperSizeRecord;
using MachineDetailRecord = TelmarMachineDetailRecord;
using MachineInfoRecord = TelmarMachineInfoRecord;
using DeviceTable = TelmarDeviceTable;
using ProfileEntry = TelmarProfileEntry;
using TrayPaperDefault = TelmarTrayPaperDefault;
using ObjectColor = TelmarObjectColor;
using OemDevmode = TelmarOemDevmode;
using FeatureRecord = TelmarFeatureRecord;
using FeatureSettings = TelmarFeatureSettings;
using PrinterViewRequest = TelmarPrinterViewRequest;
using TrayPaperSetting = TelmarTrayPaperSetting;
using ProfileList = TelmarProfileList;
using ProfileLists = TelmarProfileLists;
using DialogContext = TelmarDialogContext;
using ControlTextRecord = TelmarControlTextRecord;
using StopIconRecord = TelmarStopIconRecord;
using StopIconTable = TelmarStopIconTable;
using ModelCheckInfo = TelmarModelCheckInfo;
using OptionValueRecord = TelmarOptionValueRecord;
using OptionRecord = TelmarOptionRecord;
using OptionReqInfo = TelmarOptionReqInfo;
using MrkSupItem = TelmarMrkSupItem;
using MrkSupReqInfo = TelmarMrkSupReqInfo;
using StorageNameRecord = TelmarStorageNameRecord;
using SelectorRecord = TelmarSelectorRecord;
using OverlayReqInfo = TelmarOverlayReqInfo;
using ProfileReqInfo = TelmarProfileReqInfo;
using OptionRequestItem = TelmarOptionRequestItem;
using MrkSupRequestItem = TelmarMrkSupRequestItem;
using StoredResourceEntry = TelmarStoredResourceEntry;
using StoredResourceList = TelmarStoredResourceList;
using OverlayInfo = TelmarOverlayInfo;
using ProfileInfo = TelmarProfileInfo;
using InputTrayStatusItem = TelmarInputTrayStatusItem;
using AddressSettings = TelmarAddressSettings;

// The key of a feature, an item or a tray in a record.
using QueryKey = char[32];

#endif
