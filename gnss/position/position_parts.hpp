#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmPosition;

// What a GNSS window is made of. Opening it opens each part, which fills, shows and connects its controls.

// The sentences, in the order in which opening starts them.
std::span<const Sentence_Row> GNSS_Sentences();

// Position, speed, course and their noise in Sensor mode. The true position (GNSS_Start_Lat, GNSS_Start_Lon)
// is typed or moved a second's way at each tick; the reported one (GNSS_Lat, GNSS_Lon), which the sentences
// use, follows it at the tick, with noise if there is any.
void Open_Motion(Simulator& Sim, frmPosition& W);

// What a fix claims to be: quality, 2D or 3D, precision, differential corrections, heights; the mode and
// status letters; the datums of DTM. Nothing here moves the position.
void Open_Fix(Simulator& Sim, frmPosition& W);

// Which satellites of the sky the window uses and how many it sees. The sky is one for both windows: the
// marks and the list of satellites in use are those of the window that changed its choice last, and both
// windows send from them.
void Open_Satellites(Simulator& Sim, frmPosition& W);

// The error statistics of GST: a box for each, and its label, which counts up and down under the mouse. The
// record holds 0 until the first edit.
void Open_GST(frmPosition& W);

// The width that shows frmGGA and, left to right, as far as the last of GSA, GSV and GST that is enabled.
void Fit_Width(Simulator& Sim, frmPosition& W);

} // namespace brinewright
