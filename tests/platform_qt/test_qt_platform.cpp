#include "platform_linux/ipv4.hpp"
#include "platform_qt/qt_platform.hpp"
#include "support.hpp"

#include <QCoreApplication>
#include <QTimer>

#include <pty.h>

#include <filesystem>
#include <fstream>

using namespace brinewright;

namespace {

struct Made_Platform {
    Scratch_Folder Folder;
    Qt_Platform_Options Options() const {
        return {Folder / "settings.ini", {}, 5, {Folder / "dev", Folder / "sys"}};
    }
    void Add_Adapter(const std::string& Name) const {
        std::filesystem::create_directories(Folder / "dev");
        std::ofstream(Folder / "dev" + "/" + Name) << "";
    }
};

} // namespace

TEST(Qt_Platform_, Com_numbers_are_kept_between_runs_and_options_are_not) {
    const Made_Platform Made;
    Made.Add_Adapter("ttyUSB3");
    {
        auto Options = Made.Options();
        Options.Com_Devices[1] = "/dev/chosen";
        Qt_Platform Platform(Options);
        EXPECT_EQ(Platform.Com_Device(1), "/dev/chosen");
        EXPECT_EQ(Platform.Com_Device(2), "");
        Made.Add_Adapter("ttyUSB1");
        EXPECT_EQ(Platform.Com_Device(2), Made.Folder / "dev/ttyUSB1") << "plugged in while it runs";
        EXPECT_EQ(Error_Of([&] { Platform.Make_Serial_Port(5)->Open("4800,n,8,1"); }),
                  "No device is assigned to COM 5");
        EXPECT_EQ(Error_Of([&] { Platform.Make_Serial_Port(17); }), "Subscript out of range");
    }
    Qt_Platform Again(Made.Options());
    EXPECT_EQ(Again.Com_Device(1), Made.Folder / "dev/ttyUSB3");
    EXPECT_EQ(Again.Com_Device(2), Made.Folder / "dev/ttyUSB1");
}

TEST(Qt_Platform_, A_seed_repeats_the_draws_and_none_does_not) {
    const Made_Platform Made;
    Qt_Platform First(Made.Options()), Second(Made.Options());
    auto Unseeded = Made.Options();
    Unseeded.Seed.reset();
    Qt_Platform Third(Unseeded), Fourth(Unseeded);
    EXPECT_EQ(First.Random.Draw(), Second.Random.Draw());
    EXPECT_NE(Third.Random.Draw(), Fourth.Random.Draw());
}

TEST(Qt_Platform_, Links_work_and_quitting_ends_the_event_loop_early_or_late) {
    const Made_Platform Made;
    auto Options = Made.Options();
    int Far = -1, Near = -1;
    char Name[100] = {};
    ASSERT_EQ(::openpty(&Far, &Near, Name, nullptr, nullptr), 0);
    const Unique_Fd Far_End(Far), Near_End(Near);
    Options.Com_Devices[9] = Name;
    Qt_Platform Platform(Options);
    const auto Port = Platform.Make_Serial_Port(9);
    Port->Open("4800,n,8,1");
    EXPECT_TRUE(Port->Is_Open());
    Platform.Make_UDP_Socket()->Open("127.0.0.1", 60001);
    EXPECT_TRUE(Parse_IPv4(Platform.Local_IP()).has_value());

    Platform.Quit();
    EXPECT_EQ(QCoreApplication::exec(), 0);
    bool Reached = false;
    QTimer::singleShot(0, [&] {
        Platform.Quit();
        Reached = true; // the present event is completed
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(Reached);
}
