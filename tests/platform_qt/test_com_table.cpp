#include "platform/virtual_platform.hpp"
#include "platform_linux/com_table.hpp"
#include "support.hpp"

#include <filesystem>
#include <fstream>

using namespace brinewright;
namespace fs = std::filesystem;

namespace {

// A tree of devices like the system's.
struct Device_Tree {
    Scratch_Folder Folder;
    Device_Roots Roots{Folder / "dev", Folder / "sys"};

    Device_Tree() { fs::create_directories(Roots.Dev + "/serial/by-id"); }
    std::string Add(const std::string& Name) const {
        std::ofstream(Roots.Dev + "/" + Name) << "";
        return Roots.Dev + "/" + Name;
    }
    std::string Add_UART(const std::string& Name, const char* Type) const {
        fs::create_directories(Roots.Sys_TTY + "/" + Name);
        std::ofstream(Roots.Sys_TTY + "/" + Name + "/type") << Type << "\n";
        return Add(Name);
    }
    std::string Add_By_Id(const std::string& Id, const std::string& Name) const {
        fs::create_symlink("../../" + Name, Roots.Dev + "/serial/by-id/" + Id);
        return Roots.Dev + "/serial/by-id/" + Id;
    }
};

} // namespace

TEST(Com_Table_, Devices_are_found_once_each_built_in_ones_first) {
    const Device_Tree Tree;
    const std::string S10 = Tree.Add_UART("ttyS10", "4"), S2 = Tree.Add_UART("ttyS2", "4");
    Tree.Add_UART("ttyS0", "0");              // not there in truth
    const std::string S3 = Tree.Add("ttyS3"); // opening it tells
    const std::string AMA = Tree.Add("ttyAMA0"), USB1 = Tree.Add("ttyUSB1"), ACM = Tree.Add("ttyACM0");
    Tree.Add("ttyUSB0");
    const std::string By_Id = Tree.Add_By_Id("usb-Maker_Adapter-if00", "ttyUSB0");
    Tree.Add("tty1");
    Tree.Add("ttyUSBx");
    EXPECT_EQ(Find_Serial_Devices(Tree.Roots),
              (std::vector<std::string>{S2, S3, S10, AMA, By_Id, USB1, ACM}));
    EXPECT_TRUE(Find_Serial_Devices({Tree.Folder / "none", Tree.Folder / "none"}).empty());
}

TEST(Com_Table_, Known_devices_keep_their_numbers_and_new_ones_take_the_lowest_free) {
    Memory_Settings Settings;
    Com_Table Devices = Load_Com_Table(Settings);
    EXPECT_TRUE(Assign_Devices(Devices, {"/a", "/b", "/c"}));
    Devices[2].clear(); // given up by the user
    Save_Com_Table(Devices, Settings);
    Com_Table Again = Load_Com_Table(Settings);
    EXPECT_EQ(Settings.Values.size(), 2u) << "free numbers need no entry";
    EXPECT_FALSE(Assign_Devices(Again, {"/c"})) << "an absent device keeps its number";
    EXPECT_TRUE(Assign_Devices(Again, {"/d", "/e", "/a"}));
    EXPECT_EQ(Again[1], "/a");
    EXPECT_EQ(Again[2], "/d");
    EXPECT_EQ(Again[3], "/c");
    EXPECT_EQ(Again[4], "/e");
    for (int Number = 5; Number <= 16; ++Number) Again[Number] = "/x" + std::to_string(Number);
    EXPECT_FALSE(Assign_Devices(Again, {"/too many"}));
}

TEST(Com_Table_, A_device_under_two_names_gets_one_number) {
    const Device_Tree Tree;
    const std::string USB0 = Tree.Add("ttyUSB0");
    Com_Table Devices;
    EXPECT_TRUE(Assign_Devices(Devices, Find_Serial_Devices(Tree.Roots)));
    EXPECT_EQ(Devices[1], USB0);
    Tree.Add_By_Id("usb-Maker_Adapter-if00", "ttyUSB0");
    EXPECT_FALSE(Assign_Devices(Devices, Find_Serial_Devices(Tree.Roots)));
}

TEST(Com_Table_, Options_name_a_number_and_a_device) {
    EXPECT_EQ(Parse_Com_Option("16=/dev/pts/3"), (std::pair<int, std::string>(16, "/dev/pts/3")));
    EXPECT_EQ(Parse_Com_Option("1=a=b").second, "a=b");
    for (const char* Text :
         {"", "=", "1", "1=", "=/dev/x", "0=/dev/x", "17=/dev/x", "-1=/dev/x", "1x=/dev/x", "x"}) {
        EXPECT_NE(Error_Of([&] { Parse_Com_Option(Text); }).find("1 to 16"), std::string::npos) << Text;
    }
}
