// Host only: process attach and detach with a parameter data file: what exists in between, what is released,
// what is built without memory.
#include "base/module_handles.h"
#include "frame/entry.h"
#include "support/prm_image.h"
#include "win32_control.h"

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

const auto kModule = reinterpret_cast<HINSTANCE>(uintptr_t{0x10000});

// The module and the resource module are in a folder of their own.
struct StartUpTest : ParameterDataTest {
    StartUpTest() {
        std::string name = testing::TempDir() + "module_XXXXXX";
        folder = mkdtemp(name.data());
        Arrange();
    }
    ~StartUpTest() override { fs::remove_all(folder); }
    void Arrange() const {
        win32::Reset();
        const auto path = [this](const char* file) { return Widened((folder / file).string()); };
        win32::SetModuleFileName(path("TELMAR_D.DLL").data());
        win32::RegisterLibrary(path("TELMAR_S.DLL").data());
    }
    void Store(const std::vector<uint8_t>& bytes) const {
        std::ofstream(folder / "TELMAR_D.PRM", std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    static void Attach() {
        EXPECT_EQ(DllMain(kModule, DLL_PROCESS_ATTACH, nullptr), TRUE);
        EXPECT_NE(ResourceModule(), nullptr);
        EXPECT_EQ(win32::Count().files, 0) << "the parameter data file is closed";
    }
    // The second time there is nothing left to release.
    static void Detach(int times = 1) {
        for (int i = 0; i < times; ++i) {
            EXPECT_EQ(DllMain(kModule, DLL_PROCESS_DETACH, nullptr), TRUE);
            EXPECT_EQ(deviceTable, nullptr);
            EXPECT_EQ(mediaTypeLists, nullptr);
            EXPECT_EQ(win32::Count().globalBlocks, 0);
            EXPECT_EQ(win32::Count().libraryReferences, 0);
        }
    }

    fs::path folder;
};

// An entry for each builder, and for what depends on their order.
PrmImage CompleteImage() {
    PrmImage image;
    const auto items = [&](const char* entry, const std::vector<PrmItemDescriptor>& plain, const char* defaultKey) {
        const uint32_t offset = image.Items(entry, plain);
        image.SetDefault(offset, image.Put(RawBytes(16).U32(0, image.Text(defaultKey))));
    };
    image.Items<PrmTextItem>("MediaWeight", {image.WithText("Plain", L"Plain paper", 3, "")});
    image.Items<PrmMediaItem>("ALL_InTray", {image.Media("InTray3", L"", 300, 1, "")});
    image.Items<PrmMediaItem>("InTray", {image.Media("InTray1", L"Tray 1", 257, 1, "")});
    image.Items<PrmItemDescriptor>("MediaTypeList_Tray", {image.Plain("x_InTray1", L"First")});
    const uint32_t detail = image.Put(RawBytes(32).Text(0, "lumora").Text(16, "R880"));
    image.Entry("MachineInfo", {image.Put(RawBytes(24).Text(0, "M").U32(16, 1).U32(20, detail))});
    image.StringValue("FCoverTray", "FCover_Tray3");
    items("Property_0", {image.Plain("OK", L"Yes")}, "");
    items("Dlg_ColorSetting", {image.Plain("Text", L"Letters")}, "");
    items("Dlg_PaperSourceTraySetting",
          {image.Plain("MEDIATYPELIST_SIZE", L"Format"), image.Plain("MediaType_Info", L"Info")}, "");
    items("SimulationProf", {image.Plain("Simu_DIC", L"DIC")}, "Simu_DIC");
    items("Text_RGBProf", {image.Plain("Text_PAL", L"PAL")}, "Text_sRGB");
    items("Graph_Destination", {image.Plain("Graph_DestAuto", L"Printer")}, "Graph_DestAuto");
    items("MediaTypeList_Weight", {image.Plain("MediaTypeList_Weight_Unknown", L"?")}, "");
    return image;
}

const RawBytes kWeights =
    ListRecord("Plain", 3, L"Plain paper").Append(ListRecord("MediaTypeList_Weight_Unknown", 0xFFFFFFFF, L"?"));

TEST_F(StartUpTest, WithoutAFileTablesStayAsCompiledIn) {
    Attach();
    EXPECT_EQ(deviceTable, nullptr);
    EXPECT_EQ(mediaTypeLists, nullptr);
    EXPECT_TRUE(kept.Unchanged());
    Detach(2);
    fs::create_directory(folder / "TELMAR_D.PRM"); // opens on some systems, but can't be read
    Attach();
    Detach();
}

TEST_F(StartUpTest, EmptyAndPartialFilesBuildWhatTheyHave) {
    PrmImage partial;
    partial.Items<PrmTextItem>("Staple", {partial.WithText("A", L"", 1, "")});
    for (const std::vector<uint8_t>& bytes : {std::vector<uint8_t>(), PrmImage().bytes, partial.bytes}) {
        kept.Restore();
        Store(bytes);
        Attach();
        ASSERT_NE(deviceTable, nullptr);
        EXPECT_EQ(NumberAt<void*>(deviceTable, 682) != nullptr, bytes == partial.bytes) << "staples";
        EXPECT_EQ(NumberAt<uint32_t>(deviceTable, 630), 1u);
        ASSERT_NE(mediaTypeLists, nullptr);
        for (const ItemRecord* list : mediaTypeLists->lists)
            EXPECT_EQ(Differences(list, RawBytes(144)), "");
        EXPECT_EQ(Differences(&colorTables.graphics.rgbProfiles, RawBytes(17 * 144)), "");
        EXPECT_TRUE(kept.slots.Unchanged() && kept.property.Unchanged() && kept.columns.Unchanged());
        Detach(2);
    }
}

TEST_F(StartUpTest, BuildersRunInOrder) {
    Store(CompleteImage().bytes);
    for (const int round : {1, 2}) {
        SCOPED_TRACE(round);
        kept.Restore(); // as at each load
        Attach();
        ASSERT_NE(deviceTable, nullptr);
        ASSERT_NE(mediaTypeLists, nullptr);
        EXPECT_EQ(Differences(mediaTypeLists->lists[kMediaWeight], kWeights), "");
        RawBytes settings(sizeof(defaultSettings)); // from the compiled-in tables and the updated slots
        memcpy(settings.bytes.data(), kept.settings.bytes, sizeof(defaultSettings));
        settings.Text(167, "InTray1").U32(199, 257).U16(203, 257);
        settings.U8(1395, 14).U8(1396, 1).U8(1478, 4).U8(1483, 4).U16(1480, 300).U16(2166, 5).U16(2516, 1);
        EXPECT_EQ(Differences(&defaultSettings, settings), "");

        EXPECT_EQ(Differences(&colorTables.simulations, ListRecord("Simu_DIC", 0, L"DIC").Append(RawBytes(144))), "");
        EXPECT_EQ(Differences(&colorTables.text.rgbProfiles, ListRecord("Text_PAL", 133, L"PAL").Append(RawBytes(144))),
                  "");
        EXPECT_EQ(Differences(&colorTables.graphics.destinations, ListRecord("Graph_DestAuto", 0, L"Printer")), "");
        EXPECT_EQ(Differences(propertyTexts[12].display, RawBytes(96).Wide(0, L"Yes")), "");
        EXPECT_EQ(Differences(colorDialogTexts[2].display, RawBytes(96).Wide(0, L"Letters")), "");
        EXPECT_EQ(Differences(trayDialogTexts[3].display, RawBytes(96).Wide(0, L"Format")), "");
        EXPECT_EQ(Differences(mediaTypeColumns[0].title, RawBytes(96).Wide(0, L"Tray")), "");
        EXPECT_EQ(Differences(mediaTypeColumns[1].title, RawBytes(96).Wide(0, L"Format")), "");
        Detach(2);
    }
}

TEST_F(StartUpTest, AttachSucceedsWithoutMemory) {
    Store(CompleteImage().bytes);
    Attach();
    Detach();
    const unsigned allocations = win32::Count().allocations;
    const RawBytes destination = ListRecord("Graph_DestAuto", 0, L"Printer");
    unsigned withoutLists = 0, withoutDestination = 0;
    for (unsigned n = 1; n <= allocations; ++n) {
        SCOPED_TRACE(n);
        for (const unsigned howMany : {1u, allocations}) {
            Arrange();
            kept.Restore();
            win32::FailAllocations(n, howMany);
            Attach();
            const bool built = n == 2 ? howMany == 1 : n > 3; // 1 the file, 2 its image, 3 the device table
            EXPECT_EQ(deviceTable != nullptr, built);
            EXPECT_EQ(kept.Unchanged(), !built) << "nothing else is built";
            EXPECT_TRUE(built || mediaTypeLists == nullptr);
            if (built && howMany == 1) {
                withoutLists += mediaTypeLists == nullptr ? 1 : 0;
                withoutDestination += Differences(&colorTables.graphics.destinations, destination).empty() ? 0 : 1;
                EXPECT_EQ(Differences(propertyTexts[12].display, RawBytes(96).Wide(0, L"Yes")), "");
            }
            Detach();
        }
    }
    EXPECT_EQ(withoutLists, 7u) << "the block and each of its lists";
    EXPECT_EQ(withoutDestination, 1u) << "the list stays as compiled in";
}

} // namespace
