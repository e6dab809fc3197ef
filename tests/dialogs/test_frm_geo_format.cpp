#include "dialogs/geo_format/frm_geo_format.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/shell_state.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

struct Geo_Format : testing::Test, Virtual_Simulator {
    frmGeoFormat& Open() {
        Click(Main_Window(Sim).Item("mnuSetupLatLonFormat"));
        return *Open_One<frmGeoFormat>(Sim);
    }
    void SetUp() override { Sim.State.Of<Navdata_State>().Nav_Lat = 62.5 + 5.5 / 60; }
};

constexpr const char* Example_DM = "62\xB0 35.5000' N";
constexpr const char* Example_DMS = "62\xB0 35' 30.000\" N";

TEST_F(Geo_Format, Shows_The_Format_And_An_Example) {
    frmGeoFormat& F = Open();
    EXPECT_EQ(F.Caption, "Geographic Co-ordinates Format Selection");
    ASSERT_EQ(F.optFormat.Buttons.size(), 2u);
    EXPECT_EQ(*F.optFormat.Buttons[0]->Caption, " DD\xB0 MM.mmmm N");
    EXPECT_EQ(*F.optFormat.Buttons[1]->Caption, " DD\xB0 MM' SS.sss\" N");
    EXPECT_EQ(*F.lblDecimals.Caption, "No of decimals : ");
    EXPECT_TRUE(F.cmbDecimals.Items().empty());
    EXPECT_EQ(F.optFormat.Selected(), 0);
    EXPECT_EQ(*F.lblExample.Caption, Example_DM);
    Click(*F.optFormat.Buttons[1]);
    EXPECT_EQ(*F.lblExample.Caption, Example_DMS);
    Click(*F.optFormat.Buttons[0]);
    EXPECT_EQ(*F.lblExample.Caption, Example_DM);

    // An entry, if there were one, would be the number of decimals.
    for (const char* Entry : {"0", "1"}) F.cmbDecimals.Add_Item(Entry);
    F.cmbDecimals.Set_List_Index(1);
    EXPECT_EQ(*F.lblExample.Caption, "62\xB0 35.5' N");
    Click(*F.optFormat.Buttons[1]);
    F.cmbDecimals.Set_List_Index(1);
    EXPECT_EQ(*F.lblExample.Caption, "62\xB0 35' 30.0\" N");
}

TEST_F(Geo_Format, OK_Takes_The_Choice_And_Cancel_Leaves_It) {
    Click(*Open().optFormat.Buttons[1]);
    Click(Open_One<frmGeoFormat>(Sim)->cmdCancel);
    EXPECT_FALSE(Open_One<frmGeoFormat>(Sim));
    EXPECT_EQ(Sim.State.Of<Shell_State>().LatLon_Format, 0);

    Click(*Open().optFormat.Buttons[1]);
    Click(Main_Window(Sim).Item("mnuSetupLatLonFormat")); // open already: it only gets the focus
    EXPECT_EQ(Open_One<frmGeoFormat>(Sim)->optFormat.Selected(), 1);
    Click(Open_One<frmGeoFormat>(Sim)->cmdOk);
    EXPECT_FALSE(Open_One<frmGeoFormat>(Sim));
    EXPECT_EQ(Sim.State.Of<Shell_State>().LatLon_Format, 1);

    EXPECT_EQ(*Open().lblExample.Caption, Example_DMS);
    Click(*Open_One<frmGeoFormat>(Sim)->optFormat.Buttons[0]);
    Click(Open_One<frmGeoFormat>(Sim)->cmdOk);
    EXPECT_EQ(Sim.State.Of<Shell_State>().LatLon_Format, 0);

    Sim.State.Of<Shell_State>().LatLon_Format = -7; // a setup can hold anything
    EXPECT_EQ(Open().optFormat.Selected(), 1);
}

} // namespace
} // namespace brinewright
