// The boxes of the satellites, their number, those in view and the table: who drives whom.

#include "gnss_bench.hpp"

namespace brinewright {
namespace {

std::vector<int> Checked(const frmPosition& W) {
    std::vector<int> Found;
    for (const auto& Box : W.chkSv)
        if (Box->Value()) Found.push_back(Box->Index);
    for (const auto& Box : W.chkGLSv)
        if (Box->Value()) Found.push_back(Box->Index + 64);
    for (int I = 0; I <= 6; ++I)
        if (W.chkWAASSv[I].Value()) Found.push_back(std::stoi(*W.chkWAASSv[I].Caption));
    return Found;
}

template <class List>
std::vector<int> Filled(const List& Numbers) {
    std::vector<int> Found;
    for (const std::int16_t N : Numbers)
        if (N != 0) Found.push_back(N);
    return Found;
}

void Choose(GNSS_Bench& Bench, Combo_Box& List, int Entry) {
    Bench.Sim.Windows.User_Set(List, std::int64_t{Entry});
}

void Tick(GNSS_Bench& Bench, Timer& Clock) {
    Bench.Sent.clear();
    Bench.Sim.Windows.Event([&] { Clock.Tick(); });
}

using Ints = std::vector<int>;

TEST(GNSS_Satellite_Controls, The_Number_Takes_The_Lowest_Free_And_Gives_Up_The_Last) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Choose(Bench, W.cmbSats, 10);
    EXPECT_EQ(Checked(W), (Ints{1, 2, 3, 6, 8, 12, 19, 24, 25, 32}));
    Choose(Bench, W.cmbSats, 8);
    EXPECT_EQ(Checked(W), (Ints{1, 2, 3, 6, 8, 12, 19, 24}));
    EXPECT_EQ(Filled(Bench.GNSS().Svs_In_Use), (Ints{1, 2, 3, 6, 8, 12, 19, 24}));

    // GPS first, then GLONASS, then SBAS; given up GLONASS, SBAS, GPS.
    Choose(Bench, W.cmbSats, 58);
    EXPECT_EQ(Checked(W).back(), 124);
    EXPECT_EQ(W.GGA_Record.Sats, 58);
    Choose(Bench, W.cmbSats, 33);
    EXPECT_TRUE(W.chkWAASSv[0].Value());
    EXPECT_FALSE(W.chkWAASSv[1].Value());
    EXPECT_FALSE(W.chkGLSv[1].Value());
    Choose(Bench, W.cmbSats, 63);
    EXPECT_EQ(Checked(W).size(), 63U);
    EXPECT_FALSE(W.chkWAASSv[7].Value());
    Bench.Click(W.chkWAASSv[7]);
    EXPECT_EQ(W.cmbSats.Text(), "63") << "the last box has no satellite";

    Choose(Bench, W.cmbSats, 0);
    EXPECT_EQ(Checked(W), Ints{});
    EXPECT_EQ(W.hfgGSV.Rows(), 0);
    Tick(Bench, W.Sentences["GSV"].Clock);
    EXPECT_TRUE(Bench.Sent.empty());
    Tick(Bench, W.Sentences["GSA"].Clock);
    EXPECT_EQ(Bench.Sent.at(0).Text, Framed("GPGSA,A,3,,,,,,,,,,,,,2.6,1.4,2.2"));
}

TEST(GNSS_Satellite_Controls, The_Table_Rounds_And_Follows_The_Sky_Once_A_Minute) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Choose(Bench, W.cmbInView, 9);
    for (const int I : {1, 3}) {
        Sky_Satellite& S = Bench.GNSS().Sky_Table[I];
        S.Elevation = 62.5F;
        S.Azimuth = 7.25F;
        S.SNR = -0.25F;
    }
    EXPECT_EQ(W.hfgGSV.At(0, 1).Text, "00");
    W.timer_GSVUpdate.Set_Interval(60'000);
    Main_Window(Bench.Sim).timer_Sky.Set_Interval(0); // keep the values
    Bench.Run_For(60);
    const auto Row = [&](int R) {
        return W.hfgGSV.At(R, 1).Text + " " + W.hfgGSV.At(R, 2).Text + " " + W.hfgGSV.At(R, 3).Text;
    };
    EXPECT_EQ(Row(0), "62 007 00") << "in use: to the even integer first";
    EXPECT_EQ(Row(8), "63 007 -00") << "in view: the value itself in the pattern";
}

TEST(GNSS_Satellite_Controls, Both_Windows_Share_One_Sky) {
    GNSS_Bench Bench;
    frmPosition& First = Bench.Open(1);
    frmPosition& Second = Bench.Open(2);
    Bench.Click(Second.chkSv[3]);
    Bench.Click(Second.chkGLSv[2]);
    EXPECT_FALSE(Bench.GNSS().Sky_Table[3].Used);
    EXPECT_TRUE(First.chkSv[3].Value()) << "the boxes of the other window stay";
    EXPECT_EQ(First.GSA_Record.PRN[1], 3);
    for (frmPosition* W : {&First, &Second}) {
        Tick(Bench, W->Sentences["GSV"].Clock);
        EXPECT_EQ(Bench.Sent.at(0).Text.substr(0, 15), "$GPGSV,2,1,8,6,");
        EXPECT_NE(Bench.Sent.at(1).Text.find(",66,"), std::string::npos);
    }
    Choose(Bench, First.cmbInView, 9);
    EXPECT_EQ(Bench.GNSS().Svs_In_View[3], 3) << "free by the other window's choice";
}

} // namespace
} // namespace brinewright
