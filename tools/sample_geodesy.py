"""Geodesy for the sample dataset generator: GRS 80, geodesics, state plane and UTM.

Only what the sample data sheets print: positions moved by a distance and an azimuth (Vincenty's
direct problem), distances and azimuths between marks (his inverse), transverse Mercator by
Kruger's series (UTM), Lambert conformal conic with two standard parallels (state plane), the
grid scale factors and convergences, and Earth-centred X, Y, Z. Angles in degrees, longitude
positive east inside this module.
"""
import math

A = 6378137.0
F = 1 / 298.257222101
B = A * (1 - F)
E2 = F * (2 - F)
E = math.sqrt(E2)


def direct(lat, lon, azimuth, distance):
    """The point at `distance` metres along the geodesic leaving (lat, lon) at `azimuth`."""
    phi1, alpha1 = math.radians(lat), math.radians(azimuth)
    u1 = math.atan((1 - F) * math.tan(phi1))
    sigma1 = math.atan2(math.tan(u1), math.cos(alpha1))
    sin_alpha = math.cos(u1) * math.sin(alpha1)
    cos2_alpha = 1 - sin_alpha ** 2
    u2 = cos2_alpha * (A * A - B * B) / (B * B)
    a_ = 1 + u2 / 16384 * (4096 + u2 * (-768 + u2 * (320 - 175 * u2)))
    b_ = u2 / 1024 * (256 + u2 * (-128 + u2 * (74 - 47 * u2)))
    sigma = distance / (B * a_)
    for _ in range(100):
        two_sigma_m = 2 * sigma1 + sigma
        delta = b_ * math.sin(sigma) * (math.cos(two_sigma_m) + b_ / 4 * (
            math.cos(sigma) * (-1 + 2 * math.cos(two_sigma_m) ** 2)
            - b_ / 6 * math.cos(two_sigma_m) * (-3 + 4 * math.sin(sigma) ** 2) * (-3 + 4 * math.cos(two_sigma_m) ** 2)))
        previous, sigma = sigma, distance / (B * a_) + delta
        if abs(sigma - previous) < 1e-13:
            break
    two_sigma_m = 2 * sigma1 + sigma
    tmp = math.sin(u1) * math.sin(sigma) - math.cos(u1) * math.cos(sigma) * math.cos(alpha1)
    phi2 = math.atan2(math.sin(u1) * math.cos(sigma) + math.cos(u1) * math.sin(sigma) * math.cos(alpha1),
                      (1 - F) * math.sqrt(sin_alpha ** 2 + tmp ** 2))
    lam = math.atan2(math.sin(sigma) * math.sin(alpha1),
                     math.cos(u1) * math.cos(sigma) - math.sin(u1) * math.sin(sigma) * math.cos(alpha1))
    c = F / 16 * cos2_alpha * (4 + F * (4 - 3 * cos2_alpha))
    l_ = lam - (1 - c) * F * sin_alpha * (sigma + c * math.sin(sigma) * (
        math.cos(two_sigma_m) + c * math.cos(sigma) * (-1 + 2 * math.cos(two_sigma_m) ** 2)))
    return math.degrees(phi2), lon + math.degrees(l_)


def inverse(lat1, lon1, lat2, lon2):
    """(distance in metres, forward azimuth in degrees 0-360) from the first point to the second."""
    u1 = math.atan((1 - F) * math.tan(math.radians(lat1)))
    u2 = math.atan((1 - F) * math.tan(math.radians(lat2)))
    l_ = math.radians(lon2 - lon1)
    lam = l_
    for _ in range(200):
        sin_sigma = math.hypot(math.cos(u2) * math.sin(lam),
                               math.cos(u1) * math.sin(u2) - math.sin(u1) * math.cos(u2) * math.cos(lam))
        cos_sigma = math.sin(u1) * math.sin(u2) + math.cos(u1) * math.cos(u2) * math.cos(lam)
        sigma = math.atan2(sin_sigma, cos_sigma)
        sin_alpha = math.cos(u1) * math.cos(u2) * math.sin(lam) / sin_sigma
        cos2_alpha = 1 - sin_alpha ** 2
        cos_2sm = cos_sigma - 2 * math.sin(u1) * math.sin(u2) / cos2_alpha
        c = F / 16 * cos2_alpha * (4 + F * (4 - 3 * cos2_alpha))
        previous = lam
        lam = l_ + (1 - c) * F * sin_alpha * (sigma + c * sin_sigma * (cos_2sm + c * cos_sigma * (-1 + 2 * cos_2sm ** 2)))
        if abs(lam - previous) < 1e-13:
            break
    u2_ = cos2_alpha * (A * A - B * B) / (B * B)
    a_ = 1 + u2_ / 16384 * (4096 + u2_ * (-768 + u2_ * (320 - 175 * u2_)))
    b_ = u2_ / 1024 * (256 + u2_ * (-128 + u2_ * (74 - 47 * u2_)))
    delta = b_ * sin_sigma * (cos_2sm + b_ / 4 * (cos_sigma * (-1 + 2 * cos_2sm ** 2)
                                                  - b_ / 6 * cos_2sm * (-3 + 4 * sin_sigma ** 2) * (-3 + 4 * cos_2sm ** 2)))
    distance = B * a_ * (sigma - delta)
    azimuth = math.degrees(math.atan2(math.cos(u2) * math.sin(lam),
                                      math.cos(u1) * math.sin(u2) - math.sin(u1) * math.cos(u2) * math.cos(lam)))
    return distance, azimuth % 360.0


def transverse_mercator(lat, lon, central_meridian, k0, false_easting, false_northing, lat_origin=0.0):
    """(north, east, scale factor, convergence in degrees) by Kruger's series to the fourth order."""
    n = F / (2 - F)
    big_a = A / (1 + n) * (1 + n ** 2 / 4 + n ** 4 / 64)
    alpha = [n / 2 - 2 * n ** 2 / 3 + 5 * n ** 3 / 16 + 41 * n ** 4 / 180,
             13 * n ** 2 / 48 - 3 * n ** 3 / 5 + 557 * n ** 4 / 1440,
             61 * n ** 3 / 240 - 103 * n ** 4 / 140,
             49561 * n ** 4 / 161280]

    def xi_eta(phi, dlam):
        t = math.sinh(math.atanh(math.sin(phi)) - E * math.atanh(E * math.sin(phi)))
        xi_p = math.atan2(t, math.cos(dlam))
        eta_p = math.atanh(math.sin(dlam) / math.sqrt(1 + t * t))
        xi, eta, sigma, tau = xi_p, eta_p, 1.0, 0.0
        for j, a_j in enumerate(alpha, start=1):
            xi += a_j * math.sin(2 * j * xi_p) * math.cosh(2 * j * eta_p)
            eta += a_j * math.cos(2 * j * xi_p) * math.sinh(2 * j * eta_p)
            sigma += 2 * j * a_j * math.cos(2 * j * xi_p) * math.cosh(2 * j * eta_p)
            tau += 2 * j * a_j * math.sin(2 * j * xi_p) * math.sinh(2 * j * eta_p)
        return xi, eta, sigma, tau, t

    phi, dlam = math.radians(lat), math.radians(lon - central_meridian)
    xi, eta, sigma, tau, t = xi_eta(phi, dlam)
    xi0 = xi_eta(math.radians(lat_origin), 0.0)[0]
    north = false_northing + k0 * big_a * (xi - xi0)
    east = false_easting + k0 * big_a * eta
    k = k0 * big_a / A * math.sqrt((1 + ((1 - n) / (1 + n) * math.tan(phi)) ** 2)
                                   * (sigma ** 2 + tau ** 2) / (t ** 2 + math.cos(dlam) ** 2))
    gamma = math.atan2(tau * math.sqrt(1 + t * t) + sigma * t * math.tan(dlam),
                       sigma * math.sqrt(1 + t * t) - tau * t * math.tan(dlam))
    return north, east, k, math.degrees(gamma)


def utm(lat, lon):
    """(zone, north, east, scale factor, convergence) in the zone of the longitude."""
    zone = int((lon + 180) // 6) + 1
    return (zone,) + transverse_mercator(lat, lon, zone * 6 - 183, 0.9996, 500000.0, 0.0)


def lambert(lat, lon, lat0, lon0, sp1, sp2, false_easting, false_northing):
    """(north, east, scale factor, convergence in degrees), Lambert conic with two parallels."""
    def m(phi):
        return math.cos(phi) / math.sqrt(1 - E2 * math.sin(phi) ** 2)

    def t(phi):
        return math.tan(math.pi / 4 - phi / 2) / ((1 - E * math.sin(phi)) / (1 + E * math.sin(phi))) ** (E / 2)

    p1, p2, p0, p = (math.radians(v) for v in (sp1, sp2, lat0, lat))
    n = (math.log(m(p1)) - math.log(m(p2))) / (math.log(t(p1)) - math.log(t(p2)))
    big_f = m(p1) / (n * t(p1) ** n)
    rho0, rho = A * big_f * t(p0) ** n, A * big_f * t(p) ** n
    theta = n * math.radians(lon - lon0)
    east = false_easting + rho * math.sin(theta)
    north = false_northing + rho0 - rho * math.cos(theta)
    return north, east, rho * n / (A * m(p)), math.degrees(theta)


def ecef(lat, lon, height):
    phi, lam = math.radians(lat), math.radians(lon)
    nu = A / math.sqrt(1 - E2 * math.sin(phi) ** 2)
    return ((nu + height) * math.cos(phi) * math.cos(lam), (nu + height) * math.cos(phi) * math.sin(lam),
            (nu * (1 - E2) + height) * math.sin(phi))


def usng(lat, lon):
    """The U.S. National Grid address to the metre ("17SPV6915292438")."""
    zone, north, east, _, _ = utm(lat, lon)
    band = "CDEFGHJKLMNPQRSTUVWX"[int((lat + 80) // 8)]
    column = ("ABCDEFGH", "JKLMNPQR", "STUVWXYZ")[(zone - 1) % 3][int(east // 100000) - 1]
    row = "ABCDEFGHJKLMNPQRSTUV"[(int(north // 100000) + (5 if zone % 2 == 0 else 0)) % 20]
    return "%d%s%s%s%05d%05d" % (zone, band, column, row, int(east) % 100000, int(north) % 100000)
