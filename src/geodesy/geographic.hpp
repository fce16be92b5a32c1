#pragma once
// Short lines on a given ellipsoid, forward and inverse, through the straight chord in
// three-dimensional Cartesian coordinates with a closed chord-to-arc correction; no iteration.
// Meant for the few hundred metres from a mark to its reference objects. Latitudes positive north,
// longitudes positive west, azimuths clockwise from north (0 up to the full circle), all radians;
// distances in metres on the ellipsoid.
#include "geodesy/ellipsoid.hpp"
#include "platform/ui.hpp"

namespace benchlog {

// The mean Earth radius of the inverse's chord-to-arc correction, whatever the ellipsoid.
inline constexpr double kMeanEarthRadius = 6371008.77138;

// The end of a line of length `distance` leaving (`lat1`, `lon1`) in azimuth `forwardAzimuth`.
// The line's radius is N / (1 + cos^2(lat1) ep2 azimuth), with the azimuth in radians as a plain
// factor, and the longitude difference is the tangent -Y2/X2 taken as the angle, so the longitude
// error grows with the cube of the line's length (about 1 mm at 1 km, centimetres at 10 km east or
// west at high latitudes). `backAzimuth` is accepted and never touched. A run-time failure inside
// shows a message box titled "Geographic Forward" through `ui` and leaves the outputs as far as
// they were written.
void GeographicForward(const Ellipsoid& ellipsoid, double lat1, double lon1, double& lat2, double& lon2,
                       double forwardAzimuth, double& backAzimuth, double distance, Ui& ui);

// Distance and azimuths between two positions. The distance is the chord plus c^3 / (24 R^2) with
// R = kMeanEarthRadius. An azimuth whose north component is exactly 0 (identical points) is not
// written: the caller's value stays. A run-time failure inside shows a message box titled
// "Geographic Inverse" through `ui` and leaves the outputs as far as they were written.
void GeographicInverse(const Ellipsoid& ellipsoid, double lat1, double lon1, double lat2, double lon2,
                       double& forwardAzimuth, double& backAzimuth, double& distance, Ui& ui);

// Earth-centred coordinates (metres) of a position with ellipsoid height `height` (metres). Since
// the longitude is positive west, Y has the opposite sign to the usual east-positive frame.
void GeodeticToCartesian(const Ellipsoid& ellipsoid, double latitude, double longitude, double height, double& x,
                         double& y, double& z);

}  // namespace benchlog
