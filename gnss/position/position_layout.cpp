#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "ownship/geodesy/format_position.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/sensor_layout.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

// Value in large figures, slider, and the box to type it in.
Layout Motion_Box(Frame& Around, Label& Value, Label& Unit, Scroll_Bar& Bar, Text_Box& Typed) {
    return Box(Around,
               Cells({At(0, 0, Readout(Value, 24, "000.0")), At(0, 1, Dim(Unit).Left().Bottom()),
                      At(1, 0, Bar), At(1, 1, Place(Typed).Width(Typed_Width))},
                     {.Down = rhythm::Base}),
               rhythm::Gap);
}

Layout Simulator_Box(frmPosition& W) {
    const auto Place_Now =
        Cells({At(0, 0, Dim(W.lblLatitude)), At(0, 1, Dim(W.lblStartLat)), At(2, 0, Dim(W.lblLongitude)),
               At(2, 1, Dim(W.lblStartLon)), At(1, 0, Readout(W.lblLat, 22, "000\xB0 00.0000' N")),
               At(1, 1, W.txtLat), At(3, 0, Readout(W.lblLon, 22, "000\xB0 00.0000' E")), At(3, 1, W.txtLon)},
              {.Across = rhythm::Gap, .Down = rhythm::Base});
    return Box(W.frmSimulator,
               Column({Place_Now, W.chkFixOffset,
                       Row({Motion_Box(W.frmSOG, W.lblSOG, W.lblSOGUnit, W.scrSOG, W.txtSOG),
                            Motion_Box(W.frmCOG, W.lblCOG, W.lblCOGUnit, W.scrCOG, W.txtCOG)}),
                       Row({W.chkNoise, Stretch(), Dim(W.lblMaxNoise), W.cmbNoise}),
                       Row(Each(W.optAccumulatedNoise.Buttons)).Then(Stretch())})
                   .Spaced(rhythm::Base),
               rhythm::Gap);
}

Layout Control_Box(frmPosition& W) {
    return Box(W.frmSimulatorControl,
               Column({Start_And_Pause(W.cmdStart, W.cmdPause, W.timer_Simulator), W.cmdArrows,
                       Row({Place(W.lblArrows, Role::Good), Key_Catcher(W.txtDummy)})})
                   .Spaced(rhythm::Base),
               rhythm::Gap);
}

Layout GNS_Box(frmPosition& W) {
    const auto Value = [](Label& Shown) { return Place(Shown).Wrapped(); };
    return Box("GNS",
               Cells({At(0, 0, Dim(W.lblModeIndicatorTitle).Right()), At(0, 1, Value(W.lblGNS_ModeIndicator)),
                      At(1, 0, Dim(W.lblSystemsTitle).Right()), At(1, 1, Value(W.lblGNSS)),
                      At(2, 0, Dim(W.lblTalkerTitle).Right()), At(2, 1, Value(W.lblGNS_Talker)),
                      At(0, 2, Place(W.cmdGNSS).Middle(), 3, 1)},
                     {.Across = rhythm::Gap, .Down = rhythm::Base, .Wide_Column = 1}),
               rhythm::Gap);
}

Layout Quality_Box(frmPosition& W) {
    return Box("Fix quality", Column({Row({Dim(W.lblQuality), Place(W.cmbQuality).Wide()}),
                                      Fields({{W.lblSats, W.cmbSats},
                                              {W.lblHdop, W.cmbHdop},
                                              {W.lblAge, W.cmbAge},
                                              {W.lblStnID, W.txtStnID},
                                              {W.lblAlt, W.txtAlt},
                                              {W.lblGeoidSep, W.txtGeoidSep}},
                                             2),
                                      W.chkDifferential})
                                  .Spaced(rhythm::Toolkit));
}

Layout Modes_Box(frmPosition& W) {
    Layout Line = Row({Dim(W.lblModeIndicator), Place(W.cmbModeIndicator).Wide()});
    for (const auto& List : W.cmbGLLRMVVTG_Mode) Line.Then(Place(*List).Wide());
    return Box(W.frmModeIndicator, Line).Least_Width({*W.frmModeIndicator.Caption, 28});
}

Layout Datum_Box(frmPosition& W) {
    const auto Offset = [&W](int I) { return Place(W.txtOffset[I]).Least_Width({"00.00000", 14}).Wide(); };
    const auto Direction = [](Combo_Box& List) { return Place(List).Width({"W", 34}); };
    return Box("Datum (DTM)",
               Column({Row({Dim(W.lblLocalDatum), Place(W.cmbDatum[0]).Wide(), Dim(W.lblRefDatum),
                            Place(W.cmbDatum[1]).Wide()}),
                       Dim(W.lblOffset),
                       // The altitude has a sign instead of a direction.
                       Row({Offset(0), Direction(W.cmbNS), Offset(1), Direction(W.cmbEW), Offset(2)})})
                   .Spaced(rhythm::Base),
               rhythm::Gap);
}

Layout Satellites(std::vector<Layout> Boxes) {
    return Cells_By_Lines(8, std::move(Boxes), {.Across = 2, .Down = 2});
}

Layout SBAS_Box(frmPosition& W) {
    const struct {
        Label& Name;
        int First, Last;
    } Systems[] = {{W.lblEGNOS, 0, 2}, {W.lblWAAS, 3, 4}, {W.lblMSAS, 5, 6}, {W.lblGAGAN, 7, 7}};
    std::vector<Layout> Parts;
    int Line = 0;
    for (const auto& System : Systems) {
        Parts.push_back(At(Line, 0, Dim(System.Name)));
        for (int I = System.First; I <= System.Last; ++I)
            Parts.push_back(At(Line, I - System.First + 1, W.chkWAASSv[I]));
        ++Line;
    }
    Parts.push_back(At(Line, 0, Dim(W.lblWAASSvNote), 1, 4));
    return Box(W.frmSBAS, Cells(std::move(Parts), {.Down = 2}), rhythm::Gap);
}

Layout GSA_Box(frmPosition& W) {
    const auto Choice = [](Frame& Around, const Option_Group& Group) {
        return Box(Around, Row(Each(Group.Buttons)), rhythm::Gap);
    };
    return Box(
        W.frmGSA,
        Column({Row({Choice(W.frmMode3D2D, W.optMode3D2D), Choice(W.frmModeAutMan, W.optModeAutMan)}),
                Fields({{W.lblPdop, W.cmbPdop}, {W.lblVdop, W.cmbVdop}}, 2),
                Column({Box(W.frmSvs, Satellites(Each(W.chkSv)), rhythm::Gap),
                        Box(W.frmGlonassSvs,
                            Column({Satellites(Each(W.chkGLSv)), Dim(W.lblGLSvNote)}).Spaced(rhythm::Toolkit),
                            rhythm::Gap),
                        SBAS_Box(W)})
                    .Spaced(rhythm::Toolkit)
                    .One_Stop(),
                Place(W.lblGSAWarning, Role::Warn).Wrapped(), Stretch()})
            .Spaced(rhythm::Toolkit),
        rhythm::Gap);
}

// The satellites of the window in the order of its table: those in use, then the others in view.
Sky_Reading Read_Sky(const Simulator_State& State, const frmPosition& W) {
    Sky_Reading Marks;
    const int In_Use = W.GGA_Record.Sats;
    for (int Row_Number = 1; Row_Number <= W.hfgGSV.Rows() && Row_Number <= 88; ++Row_Number) {
        const bool Used = Row_Number <= In_Use;
        const std::int16_t Identifier =
            Used ? State.Of<GNSS_State>().Svs_In_Use[Row_Number]
                 : State.Of<GNSS_State>().Svs_In_View[std::max(Row_Number - In_Use, 1)];
        if (!Is_In_Sky(State, Identifier)) continue;
        const Sky_Satellite& S = State.Of<GNSS_State>().Sky_Table[Identifier];
        Marks.push_back({W.hfgGSV.At(Row_Number - 1, 0).Text, S.Elevation, S.Azimuth, S.SNR, Used});
    }
    return Marks;
}

Layout GSV_Box(const Simulator_State& State, frmPosition& W) {
    constexpr int Least_Sky = 150;
    return Box(
        W.frmGSV,
        Column(
            {Row({Dim(W.lblInView), W.cmbInView, Stretch()}),
             Painted([&State, &W] { return Read_Sky(State, W); }, 190, 170,
                     "Satellites in view, north up, the zenith in the middle; filled: in use. Green: 25 dB "
                     "and more, amber: 12 dB and more, red: less")
                 .Least_Width(Least_Sky)
                 .Least_Height(Least_Sky)
                 .Wide(3),
             Listing(W.hfgGSV).Least_Width(190).Least_Height(110).Wide(2)})
            .Spaced(rhythm::Toolkit),
        rhythm::Gap);
}

Layout GST_Box(frmPosition& W) {
    std::vector<Layout> Parts;
    int Line = 0;
    for (; Line <= 6; ++Line) {
        Parts.push_back(At(Line, 0, W.lblGST[Line]));
        Parts.push_back(At(Line, 1, Place(W.txtGST[Line]).Width(64)));
    }
    for (Label* Note : {&W.lblGSTIncrease, &W.lblGSTDecrease})
        Parts.push_back(At(Line++, 0, Dim(*Note), 1, 2));
    return Box(W.frmGST, Cells(std::move(Parts), {.Down = 2, .High_Row = Line}), rhythm::Gap);
}

Layout Fix_Box(const Simulator& Sim, frmPosition& W) {
    const auto Places =
        Routing(W, {{&W.lblDecimalsPosition, &W.cmbDecimals}, {&W.lblDecimalsTime, &W.cmbDecimalsTime}},
                &W.lblDecimals);
    return Bare(W.frmGGA, Row({Column({Place(W.lblShipControl, Role::Readout), Simulator_Box(W),
                                       Control_Box(W), GNS_Box(W), Datum_Box(W), Stretch()}),
                               Column({Messages(Sim, W), Places, Quality_Box(W), Modes_Box(W), Stretch()})}));
}

// From the state: in Ship mode the labels of the window are hidden.
Layout Read_Out(std::function<std::string()> Read) {
    return Text([Read = std::move(Read)] { return layout::Said{Read(), Role::Readout}; });
}

// The frames to the right are there only when the window, and the room that it stands in, is wide enough for
// all as far as this one.
std::function<bool()> Has_Room(const Simulator& Sim, const frmPosition& W, const Frame& Last) {
    return [&Sim, &W, &Last] {
        int Needed = W.frmGGA.Width;
        for (const Frame* Next : {&W.frmGSA, &W.frmGSV, &W.frmGST}) {
            Needed += Next->Width;
            if (Next == &Last) break;
        }
        return Last.Shown() && static_cast<int>(std::min(W.Width, Sim.Windows.Room_Width)) >= Needed;
    };
}

} // namespace

Layout Lay_Out_Position(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmPosition&>(Shown);
    // GST stands below GSV, so that all frames fit a small display.
    const auto Last = Column({GSV_Box(Sim.State, W).Shown_When(Has_Room(Sim, W, W.frmGSV)).Wide(),
                              GST_Box(W).Shown_When(Has_Room(Sim, W, W.frmGST))})
                          .Spaced(rhythm::Toolkit);
    return Window(
        {State_Line(Sim, W, W.cmdPause, W.timer_Simulator, "position stands still"),
         // What is left over goes to the right, so that nothing moves when a frame comes or goes.
         Row({Fix_Box(Sim, W), GSA_Box(W).Shown_When(Has_Room(Sim, W, W.frmGSA)), Last, Stretch()}).Wide(),
         Ticker(Sim, W)});
}

Layout Lay_Out_Small_Position(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmPosition&>(Shown);
    const GNSS_State& S = Sim.State.Of<GNSS_State>();
    const int I = W.Instance;
    const auto Value = [](const char* Title, std::function<std::string()> Read) {
        return Row({Text(Title), Read_Out(std::move(Read))});
    };
    return Small_Window(
        Sim, W, true,
        {Column({Value("Lat", [&S, I] { return Format_DM(S.GNSS_Lat[I], "LAT", "Form", 4); }),
                 Value("Lon", [&S, I] { return Format_DM(S.GNSS_Lon[I], "LON", "Form", 4); }),
                 Value("SOG", [&S, I] { return Format_Dot(S.GNSS_SOG[I], "0.0") + " knots"; }),
                 Value("COG", [&S, I] { return Format_Dot(S.GNSS_COG[I], "000.0") + " degrees"; })})
             .Spaced(0)});
}

} // namespace brinewright
