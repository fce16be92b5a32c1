"""The hand-written marks of the sample dataset: Orange County, North Carolina, and its neighbours.

Each mark is a dictionary of what its data sheet says; make_sample_dataset.py lays it out. Keys:

  pid, name, county, quad        the name lines
  classes, cors_id               class lines ("CORS", "FBN", "CBN", "HT_MOD", "PACS", "SACS")
  datum, lat, lon                the NAD 83 position ("2011", "NSRS2007"; "36 03 42.56888")
  pos_source, pos_decimals       source word of the position and decimals of its seconds
  height, height_decimals, height_source, vdatum   the orthometric height (metres)
  epoch, xyz, ellip, laplace, dynamic              further values; ellip = (date, source)
  accuracy, local_accuracy       network and local accuracy (north, east, ellipsoid height, cm)
  horz_order, vert_order, ellp_order               orders; vert_order = (order, class) or "POSTED"
  notes                          paragraphs of note lines, each a list of lines
  azimuth_mark, box              the primary azimuth mark and the box score
  superseded                     earlier positions and heights ("1986", "NAD 27", "NGVD 29 (..)")
  marker, arp, setting, sp_set, stamping, logo, projection, magnetic, rod_depth, sleeve_depth,
  stability, satellite           the attribute lines
  history                        the history rows, each with its note (description, recoveries)
  photo, sketch                  whether a photo or a sketch file lies beside the dataset
"""
import sample_geodesy as geo

HEADER_TEXT = "Orbis Control Office,   Retrieval Date = MARCH 4, 2024"


def h(date, condition, agency, initials=None, text=None):
    return {"date": date, "condition": condition, "agency": agency, "initials": initials, "text": text}


def dms(value, degree_digits):
    total = round(abs(value) * 3600 * 100000)
    seconds, fraction = divmod(total, 100000)
    return "%0*d %02d %02d.%05d" % (degree_digits, seconds // 3600, seconds // 60 % 60, seconds % 60, fraction)


HILLSBORO = (36 + 3 / 60 + 42.56888 / 3600, -(79 + 7 / 60 + 18.55999 / 3600))


def from_hillsboro(azimuth, metres):
    """A position given by its azimuth (d, m, s) and distance from station HILLSBORO."""
    lat, lon = geo.direct(HILLSBORO[0], HILLSBORO[1], azimuth[0] + azimuth[1] / 60 + azimuth[2] / 3600, metres)
    return {"lat": dms(lat, 2), "lon": dms(-lon, 3)}


ADJUSTED_BY_OCO = [
    "The horizontal coordinates were established by GPS and adjusted by the ",
    "Orbis Control Office in June 2012.",
]
HORIZONTAL_CLASSICAL_2005 = [
    "The horizontal coordinates were established by classical geodetic",
    "methods and adjusted by the Orbis Control Office in August 2005.",
]
HORIZONTAL_CLASSICAL_1986 = [
    "The horizontal coordinates were established by classical geodetic",
    "methods and adjusted by the Orbis Control Office in June 1986.",
]
ORTHO_LEVELING_1991 = [
    "The orthometric height was determined by differential leveling and",
    "adjusted by the Orbis Control Office in June 1991.",
]
ORTHO_GPS_2012 = [
    "The orthometric height was determined by GPS observations and a",
    "high-resolution geoid model using precise GPS observation and processing",
    "techniques.",
]
ORTHO_SCALED = ["The orthometric height was scaled from a topographic map."]
HORIZONTAL_SCALED = ["The horizontal coordinates were scaled from a topographic map and have", "an estimated accuracy of +/- 6 seconds."]
ELLIPSOIDAL_NAD83 = ["The ellipsoidal height is referenced to NAD 83 and was determined by GPS", "observations."]
GEOID_NOTE = ["Significant digits in the geoid height do not necessarily reflect",
              "accuracy.  GEOID18 height accuracy estimate available here."]
LAPLACE_NOTE = ["The Laplace correction was computed from DEFLEC18 derived deflections."]
DYNAMIC_NOTE = ["The dynamic height is computed by dividing the NAVD 88",
                "geopotential number by the normal gravity value computed on the",
                "Geodetic Reference System of 1980 (GRS 80) ellipsoid at 45",
                "degrees latitude (g = 980.6199 gals.)."]
GRAVITY_NOTE = ["The modeled gravity was interpolated from observed gravity values."]
NO_VERTICAL_CHECK = ["No vertical observational check was made to the station."]
NO_HORIZONTAL_CHECK = ["No horizontal observational check was made to the station."]
HAND_HELD_1 = ["The horizontal coordinates were determined by a hand-held GPS receiver",
               "in the autonomous mode and have an estimated accuracy of +/- 10 meters."]
HAND_HELD_2 = ["The horizontal coordinates were determined by a hand-held GPS receiver",
               "with differential corrections and have an estimated accuracy of",
               "+/- 3 meters."]
PHOTOS = ["Click photographs - Photos may exist for this station."]

LEVEL_LINE_1958 = ("K 123", "L 123", "M 123", "N 123", "P 123")


def level_bm(pid, name, county, quad, lat, lon, height, stamping, history, **more):
    """A bench mark of the 1958 first-order line along US 70 and NC 86, leveled and scaled."""
    mark = {
        "pid": pid, "name": name, "county": county, "quad": quad, "datum": "1986", "lat": lat, "lon": lon,
        "pos_source": "SCALED", "pos_decimals": 0, "height": height, "height_source": "ADJUSTED",
        "vert_order": ("FIRST", "II"), "dynamic": True,
        "notes": [HORIZONTAL_SCALED, ORTHO_LEVELING_1991, GEOID_NOTE, DYNAMIC_NOTE, GRAVITY_NOTE],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": stamping,
        "logo": "CCO", "magnetic": "N", "stability": "C", "history": history, "superseded": ["NGVD 29 (07/15/91)"],
    }
    mark.update(more)
    return mark


MARKS = [
    # --- triangulation station HILLSBORO and its landmarks -------------------------------------
    {
        "pid": "FY3210", "name": "HILLSBORO", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "datum": "2001", "lat": "36 03 42.56888", "lon": "079 07 18.55999", "height": 262.0,
        "height_decimals": 0, "height_source": "SCALED", "laplace": -3.40,
        "horz_order": "FIRST",
        "notes": [HORIZONTAL_CLASSICAL_2005, ORTHO_SCALED, GEOID_NOTE, PHOTOS, LAPLACE_NOTE],
        "azimuth_mark": ("HILLSBORO RM 3 AZIMUTH", "147 04 16.6"),
        "box": [("FY3854", "HILLSBORO RM 1", 22.140, "04152"), ("FY3855", "HILLSBORO RM 2", 24.970, "11443"),
                ("FY3856", "HILLSBORO RM 3 AZIMUTH", None, "1470416.6"),
                "FY3209", "EZ2857", "EZ1203", "EZ2856", "FY3192", "FY3304"],
        "superseded": ["1993", "1986", "NAD 27"],
        "marker": "DS", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "HILLSBORO 1933",
        "logo": "CCO",
        "history": [
            h("1933", "MONUMENTED", "COASTAL CONTROL OFFICE", "RDH", [
                "ABOUT 1-1/2 MILES SOUTHWEST OF HILLSBORO, ON HIGHEST PART AND WESTERN END OF THE "
                "OCCONEECHEE MOUNTAINS ON PROPERTY OF SCOTT GATES."]),
            h("1954", "GOOD", "COASTAL CONTROL OFFICE", "ELJ", [
                "STATION AND ALL MARKS WERE RECOVERED IN GOOD CONDITION.  THE DIRECTIONS TO ALL MARKS WERE "
                "CHECKED AND FOUND CORRECT.  THE DISTANCES TO R.M. NO. 2 AND R.M. NO. 3 WERE CHECKED AND "
                "FOUND CORRECT."]),
            h("1961", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "HILLSBORO GOOD", "", "RM 1 GOOD", "", "RM 2 GOOD", "", "RM 3 GOOD", "",
                "HEAVY GROWTH MADE IT IMPRACTICAL TO USE RM 3 FOR AZIMUTH AT GROUND LEVEL FROM STATION MARK, "
                "NCGS STATIONS COULD BE USED AS AZIMUTH FOR CONVENIENCE."]),
            h("1969", "GOOD", "COASTAL CONTROL OFFICE", "JBJ", [
                "THIS STATION WAS USED FOR CHECK ANGLE PURPOSE ONLY", "",
                "THE STATION MARK, REFERENCE MARKS 1 AND 2 WERE RECOVERED IN GOOD CONDITION.  THE AZIMUTH "
                "MARK WAS SEARCHED FOR AND NOT FOUND.", "",
                "TO REACH THE STATION FROM THE POST OFFICE IN HILLSBOROUGH, GO SOUTH ON U.S. HIGHWAY 70 AND "
                "STATE HIGHWAY 86 FOR 0.2 MILE TO WHERE THE HIGHWAYS TURN RIGHT AND A PAVED ROAD CONTINUES "
                "SOUTH.  CONTINUE SOUTH ON PAVED ROAD FOR 0.3 MILE TO A SIDE ROAD RIGHT.  TURN RIGHT AND GO "
                "WEST AND SOUTH FOR 0.4 MILE TO A FORK.  TAKE THE RIGHT FORK AND CONTINUE SOUTHERLY FOR 0.4 "
                "MILE TO A GRAVELED SIDE ROAD RIGHT, COUNTY ROAD 1183.  TURN RIGHT AND GO WEST THEN NORTH, "
                "AROUND TWO PONDS FOR 0.45 MILE TO A LOCKED GATE.  PASS THROUGH GATE AND GO NORTHWESTERLY, "
                "UPHILL FOR 0.55 MILE TO A LOOKOUT TOWER, A MICRO-WAVE MAST AND THE STATION."]),
            h("1985", "POOR", "US POWER SQUADRON", "WKB", [
                "STATION MARK - APPARENTLY DESTROYED.  MEASUREMENTS FROM TOWER LEGS PLACE STATION BENEATH "
                "METAL BLDG. CONSTRUCTED TO HOUSE RADIO EQUIPMENT.", "",
                "HILLSBORO RM 2 FOUND DESTROYED - PILOT HOLE REMAINS IN BOULDER - MARKS MISSING.", "",
                "HILLSBORO RM 3 - AZIMUTH - SEARCHED FOR BUT NOT LOCATED."]),
            h("20040612", "NOT RECOVERED", "US POWER SQUADRON", None, [
                "SEARCH WAS MADE IN THE AREA OF PLOTTED POSITION.  NO MARKER COULD BE FOUND."]),
        ],
        "photo": True, "sketch": True,
    },
    dict({
        "pid": "FY3209", "name": "HILLSBORO LOOKOUT TOWER", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "datum": "2001", "lat": "36 03 42.61513", "lon": "079 07 18.31560", "height": 262.0,
        "height_decimals": 0, "height_source": "SCALED", "laplace": -3.41, "horz_order": "SECOND",
        "notes": [HORIZONTAL_CLASSICAL_2005, ORTHO_SCALED],
        "marker": "57", "logo": "NONE",
        "history": [
            h("1954", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "ELJ", [
                "STATION IS THE CENTER OF THE BASE OF THE LOOKOUT TOWER OWNED BY THE STATE FOREST SERVICE, "
                "LOCATED ON A HIGH HILL ABOUT 1-1/2 MILES SOUTHWEST OF HILLSBORO.  IT IS 4 LEGGED GALVANIZED "
                "STEEL STRUCTURE WITH AN ENCLOSED OBSERVATION ROOM ATOP AND IS ABOUT 90 FEET HIGH.  A "
                "TRAVERSE CONNECTION WAS MADE FROM TRIANGULATION STATION HILLSBORO 1933 AND THE DISTANCE IS "
                "20.6 FEET (6.28 METERS)."]),
            h("1983", "GOOD", "US POWER SQUADRON", "WKB", [
                "TRAVERSE STA- CENTER OF BASE OF TOWER SITE VISITED, RECOVERED AS DESCRIBED."]),
            h("1988", "GOOD", "US POWER SQUADRON", "MCB", ["RECOVERED IN GOOD CONDITION."]),
            h("20060521", "GOOD", "GEOCACHING", "PFF", [
                "VISITED SITE AND VERIFIED EXISTENCE. TO REACH FROM THE ORANGE COUNTY COURTHOUSE, PROCEED "
                "SOUTH ON CHURTON STREET (OLD NC86). BEAR RIGHT ONTO ORANGE GROVE ROAD (SR1006). TURN RIGHT "
                "INTO THE STATE PARK AND CONTINUE APPROX 0.5 MILE TO TOP OF MOUNTAIN. (VEHICLES ALLOWED WITH "
                "PARK RANGER PERMISSION.)"]),
        ],
        "photo": True,
    }),
    dict({
        "pid": "FY3192", "name": "HILLSBORO ATT MICROWAVE MAST", "county": "ORANGE",
        "quad": "HILLSBOROUGH (2019)", "datum": "1986", "pos_source": "ADJUSTED", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "49",
        "history": [
            h("1969", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "JBJ", [
                "THE STATION IS THE CENTER OF THE TOP OF THE MICROWAVE MAST OF THE AMERICAN TELEPHONE AND "
                "TELEGRAPH COMPANY ON THE RIDGE ABOUT 2-1/2 MILES SOUTH OF HILLSBOROUGH.  THE MAST IS A "
                "SQUARE STEEL TOWER ABOUT 150 FEET HIGH WITH FOUR HORN ANTENNAS NEAR THE TOP."]),
            h("1999", "SEE DESCRIPTION", "NORTH CAROLINA GEODETIC SURVEY", "DRM", [
                "THE MAST STILL STANDS BUT THE HORN ANTENNAS HAVE BEEN REMOVED AND SEVERAL CELLULAR "
                "ANTENNAS ADDED.  THE CENTER OF THE TOP IS NO LONGER A WELL DEFINED POINT."]),
        ],
    }, **from_hillsboro((178, 22, 1.0), 4012.0)),
    dict({
        "pid": "EZ2857", "name": "CHAPEL HILL UNIV OF NC TANK", "county": "ORANGE",
        "quad": "CHAPEL HILL (2019)", "datum": "1986", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "55",
        "history": [
            h("1933", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "RDH", [
                "THE STATION IS THE CENTER OF THE ELEVATED STEEL WATER TANK OF THE UNIVERSITY OF NORTH "
                "CAROLINA, ON THE SOUTH SIDE OF THE CAMPUS NEAR THE POWER PLANT.  THE TANK IS ABOUT 130 FEET "
                "HIGH, WITH A CONICAL ROOF AND A BALL FINIAL."]),
            h("1961", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "WCF", ["TANK STANDS AS DESCRIBED."]),
            h("1994", "DESTROYED", "UNIVERSITY OF NORTH CAROLINA", "KLS", [
                "THE TANK WAS TAKEN DOWN IN 1993 WHEN A NEW TANK WAS BUILT ON THE WEST SIDE OF THE CAMPUS."]),
        ],
    }, **from_hillsboro((160, 40, 6.7), 18021.0)),
    dict({
        "pid": "EZ2856", "name": "CHAPEL HILL UNIV OF NC STACK", "county": "ORANGE",
        "quad": "CHAPEL HILL (2019)", "datum": "1986", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "52",
        "history": [
            h("1933", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "RDH", [
                "THE STATION IS THE CENTER OF THE TALLER OF THE TWO BRICK SMOKESTACKS OF THE UNIVERSITY "
                "POWER PLANT ON CAMERON AVENUE.  THE STACK IS ROUND, ABOUT 175 FEET HIGH, AND HAS A BLACK "
                "BAND NEAR THE TOP."]),
            h("2008", "GOOD", "TOWN OF CHAPEL HILL", "RAP", ["THE STACK STANDS AS DESCRIBED."]),
        ],
    }, **from_hillsboro((162, 33, 1.5), 17985.0)),
    dict({
        "pid": "FY3304", "name": "MEBANE MUNICIPAL TANK", "county": "ALAMANCE", "quad": "MEBANE (2019)",
        "datum": "1986", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "55",
        "history": [
            h("1954", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "ELJ", [
                "THE STATION IS THE CENTER OF THE ELEVATED WATER TANK OF THE TOWN OF MEBANE, ABOUT 2 BLOCKS "
                "NORTH OF THE RAILROAD STATION.  THE TANK IS ON FOUR LEGS AND HAS THE NAME MEBANE PAINTED ON "
                "THE BOWL."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["TANK STANDS."]),
        ],
    }, **from_hillsboro((288, 15, 42.1), 14092.0)),
    # --- triangulation station CHAPEL HILL, reobserved by GPS, with the long datum tag --------
    dict({
        "pid": "EZ1203", "name": "CHAPEL HILL", "county": "ORANGE", "quad": "CHAPEL HILL (2019)",
        "classes": ["HT_MOD"],
        "datum": "NSRS2007", "height": 148.531, "height_source": "GPS OBS", "epoch": "2002.00",
        "ellip": ("07/18/05", "GPS OBS"), "laplace": -2.95,
        "accuracy": (1.12, 0.87, 2.41), "horz_order": "FIRST", "vert_order": ("THIRD", "I"),
        "ellp_order": ("FOURTH", "I"),
        "notes": [["The horizontal coordinates were established by GPS and adjusted by the ",
                   "Orbis Control Office in February 2007."],
                  ["This is a SPECIAL STATUS position. See SPECIAL STATUS under the",
                   "DATUM ITEM on the data sheet items page."],
                  ORTHO_GPS_2012, ELLIPSOIDAL_NAD83, GEOID_NOTE, LAPLACE_NOTE],
        "azimuth_mark": ("CHAPEL HILL AZ MK", "012 44 08.2"),
        "box": [("EZ1204", "CHAPEL HILL RM 1", 14.892, "2031137.4"),
                ("EZ1205", "CHAPEL HILL RM 2", 21.317, "2960218.9"),
                ("EZ1206", "CHAPEL HILL AZ MK", None, "0124408.2"),
                "EZ2857", "EZ2856", "EZ3050"],
        "superseded": ["1993", "1986", "NAD 27", "NGVD 29 (??/??/92)"],
        "marker": "DS", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"),
        "stamping": "CHAPEL HILL 1933", "logo": "CCO", "magnetic": "N", "stability": "C",
        "satellite": (True, "July 18, 2005"),
        "history": [
            h("1933", "MONUMENTED", "COASTAL CONTROL OFFICE", "RDH", [
                "STATION IS ON THE HIGHEST POINT OF A WOODED HILL KNOWN AS LONE PINE HILL, ABOUT 1-1/4 MILES "
                "SOUTHEAST OF THE UNIVERSITY CAMPUS, ON THE PROPERTY OF THE UNIVERSITY."]),
            h("1961", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "STATION, RM 1, RM 2 AND AZIMUTH MARK RECOVERED IN GOOD CONDITION."]),
            h("19910514", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "DRM", [
                "RECOVERED AS DESCRIBED.  THE HILL IS NOW IN THE MASON FARM BIOLOGICAL RESERVE.  A KEY TO "
                "THE GATE MAY BE OBTAINED FROM THE RESERVE MANAGER."]),
            h("20050718", "GOOD", "ORBIS CONTROL OFFICE", "TLS", [
                "RECOVERED IN GOOD CONDITION.  OCCUPIED FOR 2 SESSIONS OF 6 HOURS WITH GPS FOR THE "
                "NORTH CAROLINA HEIGHT MODERNIZATION PROJECT.  SITE HAS A CLEAR SKY ABOVE 15 DEGREES EXCEPT "
                "FOR A FEW TREES TO THE NORTHWEST."]),
            h("20180422", "GOOD", "GEOCACHING", "JMH", ["FOUND IN GOOD CONDITION AS DESCRIBED."]),
        ],
        "photo": True,
    }, **from_hillsboro((161, 46, 52.7), 20932.0)),
    {
        "pid": "EZ3050", "name": "DUKE CHAPEL SPIRE", "county": "DURHAM", "quad": "NORTHWEST DURHAM (2019)",
        "datum": "1986", "lat": "36 00 07.41882", "lon": "078 56 25.53712", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "53",
        "history": [
            h("1935", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "HRB", [
                "THE STATION IS THE TOP OF THE FINIAL OF THE CENTRAL SPIRE OF THE CHAPEL TOWER OF DUKE "
                "UNIVERSITY ON THE WEST CAMPUS.  THE TOWER IS OF STONE AND IS ABOUT 210 FEET HIGH."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["SPIRE STANDS."]),
        ],
    },
    {
        "pid": "EZ3052", "name": "DURHAM WDNC RADIO TOWER", "county": "DURHAM", "quad": "NORTHEAST DURHAM (2019)",
        "datum": "1986", "lat": "36 00 51.20817", "lon": "078 53 12.66425", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986, NO_HORIZONTAL_CHECK],
        "history": [
            h("1962", "FIRST OBSERVED", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "THE STATION IS THE TOP OF THE SOUTHERN OF TWO GUYED STEEL RADIO TOWERS OF STATION WDNC, "
                "ABOUT 1 MILE EAST OF THE DURHAM COUNTY COURTHOUSE.  THE TOWER IS ABOUT 300 FEET HIGH AND "
                "CARRIES A RED LIGHT."]),
            h("19890310", "DESTROYED", "CITY OF DURHAM", "BLK", ["BOTH TOWERS HAVE BEEN REMOVED."]),
        ],
    },
    {
        "pid": "EZ3061", "name": "CARRBORO BAPTIST CHURCH SPIRE", "county": "ORANGE", "quad": "CHAPEL HILL (2019)",
        "datum": "1986", "lat": "35 54 36.07120", "lon": "079 04 33.94105", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "53",
        "history": [
            h("1961", "FIRST OBSERVED", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "THE STATION IS THE TOP OF THE WHITE SPIRE OF THE FIRST BAPTIST CHURCH OF CARRBORO ON MAIN "
                "STREET, ABOUT 0.1 MILE WEST OF THE RAILROAD."]),
        ],
    },
    # --- triangulation stations of the state survey --------------------------------------------
    {
        "pid": "FY3188", "name": "EFLAND", "county": "ORANGE", "quad": "EFLAND (2019)",
        "datum": "1986", "lat": "36 04 36.88114", "lon": "079 10 42.20936", "height": 207.9,
        "height_decimals": 1, "height_source": "VERT ANG", "horz_order": "SECOND",
        "notes": [HORIZONTAL_CLASSICAL_1986, ["The orthometric height was determined by vertical angles."]],
        "azimuth_mark": ("EFLAND AZ MK", "311 05 22.0"),
        "box": [("FY3189", "EFLAND RM 1", 9.876, "0852110.0"), ("      ", "EFLAND RM 2", 15.310, "1740655.0"),
                ("FY3190", "EFLAND AZ MK", None, "3110522.0"), "FY3209", "FY3304"],
        "superseded": ["NAD 27"],
        "marker": "DS", "setting": (36, "SET IN A MASSIVE STRUCTURE"), "sp_set": "CONCRETE CULVERT",
        "stamping": "EFLAND 1959", "logo": "NCGS", "projection": "FLUSH", "magnetic": "N", "stability": "B",
        "history": [
            h("1959", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "STATION IS ABOUT 0.4 MILE WEST OF EFLAND, ON THE NORTH SIDE OF U.S. HIGHWAY 70, SET IN THE "
                "TOP OF THE NORTH HEADWALL OF A CONCRETE CULVERT, 30 FEET NORTH OF THE CENTER OF THE "
                "HIGHWAY.  THE MARK IS FLUSH WITH THE TOP OF THE HEADWALL."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
            h("19990803", "GOOD", "NORTH CAROLINA DEPARTMENT OF TRANSPORTATION", "RLW", [
                "STATION AND RM 1 RECOVERED IN GOOD CONDITION.  RM 2 NOT SEARCHED FOR.  THE HIGHWAY HAS BEEN "
                "WIDENED AND THE CULVERT LENGTHENED ON THE SOUTH SIDE ONLY."]),
            h("20150911", "POOR", "ORANGE COUNTY LAND RECORDS", "CAS", [
                "THE HEADWALL IS CRACKED THROUGH BEHIND THE DISK.  THE DISK IS LOOSE IN ITS SETTING.  "
                "NOT RECOMMENDED FOR USE."]),
        ],
        "sketch": True,
    },
    {
        "pid": "FY3301", "name": "MEBANE", "county": "ALAMANCE", "quad": "MEBANE (2019)",
        "datum": "2001", "lat": "36 06 02.33871", "lon": "079 16 04.71850", "height": 209.482,
        "height_source": "ADJUSTED", "horz_order": "SECOND", "vert_order": ("SECOND", "0"), "dynamic": True,
        "notes": [HORIZONTAL_CLASSICAL_2005, ORTHO_LEVELING_1991, GEOID_NOTE, DYNAMIC_NOTE, GRAVITY_NOTE],
        "azimuth_mark": ("MEBANE AZ MK", "089 58 11.3"),
        "box": [("FY3302", "MEBANE RM 1", 18.288, "1950327.0"), ("FY3303", "MEBANE AZ MK", None, "0895811.3"),
                "FY3304"],
        "superseded": ["1993", "1986", "NAD 27", "NGVD 29 (07/15/91)"],
        "marker": "DS", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "MEBANE 1954",
        "logo": "CCO", "projection": "PROJECTING 8 CENTIMETERS", "magnetic": "N", "stability": "C",
        "satellite": (False, "20090415"),
        "history": [
            h("1954", "MONUMENTED", "COASTAL CONTROL OFFICE", "ELJ", [
                "STATION IS ABOUT 1 MILE NORTHEAST OF MEBANE, ON THE CREST OF A LOW RIDGE IN A PASTURE ON "
                "THE FARM OF J. W. CRAWFORD, 400 FEET EAST OF THE HOUSE."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
            h("20090415", "GOOD", "PIEDMONT LAND SURVEYING", "TWB", [
                "RECOVERED IN GOOD CONDITION.  THE PASTURE IS NOW A SUBDIVISION AND THE MARK IS IN THE "
                "BACK YARD OF 1406 CRAWFORD FARM LANE.  TALL TREES SURROUND THE LOT AND MAKE THE SITE "
                "UNSUITABLE FOR GPS."]),
        ],
    },
    {
        "pid": "EZ1210", "name": "BLACKWOOD", "county": "ORANGE", "quad": "CALDWELL (2019)",
        "datum": "1986", "lat": "36 07 58.12044", "lon": "079 05 03.82265", "height": 246.,
        "height_decimals": 0, "height_source": "SCALED", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986, ORTHO_SCALED],
        "superseded": ["NAD 27"],
        "marker": "DS", "setting": (66, "SET IN BEDROCK"), "stamping": "BLACKWOOD 1938", "logo": "CCO",
        "history": [
            h("1938", "MONUMENTED", "COASTAL CONTROL OFFICE", "HRB", [
                "STATION IS ON THE SUMMIT OF BLACKWOOD MOUNTAIN, ABOUT 4 MILES NORTHEAST OF HILLSBOROUGH, "
                "SET IN A DRILL HOLE IN OUTCROPPING ROCK AT THE HIGHEST POINT."]),
            h("1961", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "WCF", ["RECOVERED AS DESCRIBED."]),
            h("19970602", "DESTROYED", "US POWER SQUADRON", "DGH", [
                "THE SUMMIT HAS BEEN BLASTED FOR A COMMUNICATIONS SITE.  THE ROCK IN WHICH THE STATION WAS "
                "SET IS GONE.  STATION DESTROYED."]),
        ],
    },
    {
        "pid": "FY3195", "name": "CEDAR GROVE", "county": "ORANGE", "quad": "CALDWELL (2019)",
        "datum": "1986", "lat": "36 11 54.60632", "lon": "079 10 18.43977", "height": 211.,
        "height_decimals": 0, "height_source": "SCALED", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986, ORTHO_SCALED],
        "box": [("FY3196", "CEDAR GROVE RM 1", 12.055, "2745103.6")],
        "marker": "DE", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "CEDAR GROVE 1969",
        "logo": "CCO", "magnetic": "N", "stability": "C",
        "history": [
            h("1969", "MONUMENTED", "COASTAL CONTROL OFFICE", "JBJ", [
                "STATION IS IN THE VILLAGE OF CEDAR GROVE, IN THE SOUTHWEST CORNER OF THE INTERSECTION OF "
                "STATE HIGHWAY 86 AND EFLAND-CEDAR GROVE ROAD, 45 FEET WEST OF THE CENTER OF THE HIGHWAY AND "
                "38 FEET SOUTH OF THE CENTER OF THE ROAD."]),
            h("1985", "MARK NOT FOUND", "US POWER SQUADRON", "WKB", [
                "SEARCHED FOR 1 HOUR WITH A METAL DETECTOR.  A NEW STORE BUILDING AND PAVED LOT NOW COVER "
                "THE CORNER."]),
            h("20110902", "GOOD", "ORANGE COUNTY LAND RECORDS", "CAS", [
                "FOUND UNDER 4 INCHES OF GRAVEL AT THE EDGE OF THE PAVED LOT, IN GOOD CONDITION.  A WITNESS "
                "POST WAS SET 2 FEET SOUTH."]),
        ],
    },
    # --- bench marks of the 1958 level line along NC 86 ---------------------------------------
    level_bm("FY0871", "K 123", "ORANGE", "HILLSBOROUGH (2019)", "36 04 27.", "079 05 57.", 165.262,
             "K 123 1958", [
                 h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                     "IN HILLSBOROUGH, AT THE ORANGE COUNTY COURTHOUSE, SET VERTICALLY IN THE TOP OF THE "
                     "SOUTHWEST END OF THE GRANITE COPING OF THE FRONT STEPS, 4 FEET EAST OF THE SIDEWALK "
                     "ALONG CHURTON STREET."]),
                 h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
                 h("20120716", "GOOD", "ORBIS CONTROL OFFICE", "TLS", ["RECOVERED IN GOOD CONDITION."]),
             ], setting=(30, "SET IN A LIGHT STRUCTURE"), sp_set="GRANITE STEPS", stability="B", photo=True),
    level_bm("FY0872", "L 123", "ORANGE", "HILLSBOROUGH (2019)", "36 02 51.", "079 04 28.", 157.904,
             "L 123 1958", [
                 h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                     "2.0 MILES SOUTHEAST ALONG STATE HIGHWAY 86 FROM THE COURTHOUSE AT HILLSBOROUGH, AT THE "
                     "BRIDGE OVER THE ENO RIVER, SET IN THE TOP OF THE EAST END OF THE NORTH CONCRETE "
                     "PARAPET."]),
                 h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
             ], setting=(36, "SET IN A MASSIVE STRUCTURE"), sp_set="BRIDGE PARAPET"),
    level_bm("FY0873", "M 123", "ORANGE", "CHAPEL HILL (2019)", "36 00 15.", "079 03 12.", 149.711,
             "M 123 1958", [
                 h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                     "5.1 MILES SOUTHEAST ALONG STATE HIGHWAY 86 FROM THE COURTHOUSE AT HILLSBOROUGH, 40 FEET "
                     "WEST OF THE CENTER OF THE HIGHWAY, SET IN THE TOP OF A CONCRETE POST FLUSH WITH THE "
                     "GROUND."]),
                 h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
                 h("20030922", "POOR", "NORTH CAROLINA DEPARTMENT OF TRANSPORTATION", "RLW", [
                     "THE POST IS TILTED ABOUT 15 DEGREES TOWARD THE HIGHWAY AND THE DISK IS SCARRED BY A "
                     "MOWER.  THE HEIGHT SHOULD NOT BE USED WITHOUT A CHECK."]),
             ], projection="FLUSH"),
    level_bm("FY0874", "N 123", "ORANGE", "CHAPEL HILL (2019)", "35 57 48.", "079 02 41.", 153.320,
             "N 123 1958", [
                 h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                     "7.9 MILES SOUTHEAST ALONG STATE HIGHWAY 86 FROM THE COURTHOUSE AT HILLSBOROUGH, AT THE "
                     "ENTRANCE TO A CHURCH, 33 FEET EAST OF THE CENTER OF THE HIGHWAY, SET IN THE TOP OF A "
                     "CONCRETE POST."]),
                 h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
                 h("19950410", "NOT RECOVERED", "NORTH CAROLINA DEPARTMENT OF TRANSPORTATION", "RLW", [
                     "SEARCHED FOR BUT NOT FOUND.  THE HIGHWAY HAS BEEN WIDENED TO FOUR LANES AND A TURN LANE "
                     "BUILT AT THE CHURCH ENTRANCE.  PROBABLY DESTROYED."]),
             ]),
    level_bm("FY0875", "P 123", "ORANGE", "CHAPEL HILL (2019)", "35 55 30.", "079 03 18.", 141.058,
             "P 123 1958", [
                 h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                     "IN CHAPEL HILL, AT THE POST OFFICE ON FRANKLIN STREET, SET VERTICALLY IN THE EAST FACE "
                     "OF THE BUILDING, 1.5 FEET ABOVE THE SIDEWALK AND 3 FEET SOUTH OF THE NORTHEAST CORNER."]),
                 h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
                 h("20100308", "OTHER", "TOWN OF CHAPEL HILL", "RAP", [
                     "THE DISK IS PRESENT BUT HAS BEEN PAINTED OVER SEVERAL TIMES.  SEE DESCRIPTION OF 1958."]),
             ], setting=(38, "SET IN THE WALL OF A BUILDING"), stability="A", photo=True, sketch=True),
    # --- bench marks of the Durham lines ---------------------------------------------------------
    {
        "pid": "EZ0641", "name": "Z 38", "county": "DURHAM", "quad": "NORTHWEST DURHAM (2019)",
        "datum": "1986", "lat": "36 01 44.", "lon": "078 54 31.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 118.774, "vert_order": ("SECOND", "0"), "dynamic": True,
        "notes": [HORIZONTAL_SCALED, ORTHO_LEVELING_1991, GEOID_NOTE, DYNAMIC_NOTE, GRAVITY_NOTE],
        "superseded": ["NGVD 29 (07/15/91)"],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "Z 38 1934",
        "logo": "CCO", "magnetic": "N", "stability": "C",
        "history": [
            h("1934", "MONUMENTED", "COASTAL CONTROL OFFICE", "AMS", [
                "IN DURHAM, AT THE UNION STATION, ON THE NORTH SIDE OF THE TRACKS OF THE NORFOLK SOUTHERN "
                "RAILWAY, SET IN THE TOP OF A CONCRETE POST 20 FEET NORTH OF THE NORTH RAIL AND 50 FEET EAST "
                "OF THE STATION BUILDING."]),
            h("1975", "GOOD", "NORFOLK SOUTHERN RAILWAY", "PGT", ["RECOVERED AS DESCRIBED."]),
            h("20160115", "GOOD", "CITY OF DURHAM", "BLK", [
                "THE STATION BUILDING IS GONE, BUT THE MARK WAS FOUND IN GOOD CONDITION IN A LANDSCAPED "
                "STRIP BESIDE THE PARKING LOT OF THE DURHAM STATION TRANSPORTATION CENTER."]),
        ],
    },
    {
        "pid": "EZ0642", "name": "A 39", "county": "DURHAM", "quad": "SOUTHWEST DURHAM (2019)",
        "datum": "1986", "lat": "35 58 42.", "lon": "078 55 53.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 107.218, "vert_order": ("FIRST", "I"), "dynamic": True,
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by leveling and adjusted",
                                      "by the Orbis Control Office in June 1991."],
                  GEOID_NOTE, DYNAMIC_NOTE, GRAVITY_NOTE],
        "marker": "F", "setting": (59, "STAINLESS STEEL ROD IN SLEEVE (10 FT.+)"),
        "stamping": "A 39 1981", "logo": "OCO", "projection": "RECESSED 10 CENTIMETERS", "magnetic": "I",
        "rod_depth": "21.0 meters", "sleeve_depth": "0.9 meters", "stability": "A",
        "satellite": (True, "20110810"),
        "history": [
            h("1981", "MONUMENTED", "ORBIS CONTROL OFFICE", "GEM", [
                "IN DURHAM, ON THE GROUNDS OF THE NORTH CAROLINA CENTRAL UNIVERSITY, 95 FEET SOUTH OF THE "
                "CENTER OF LAWSON STREET, 60 FEET WEST OF THE SOUTHWEST CORNER OF THE PHYSICAL PLANT "
                "BUILDING, IN A LOGO CAP AND ACCESS COVER."]),
            h("19911005", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "DRM", ["RECOVERED AS DESCRIBED."]),
            h("20110810", "GOOD", "DURHAM COUNTY ENGINEERING", "MPO", [
                "RECOVERED IN GOOD CONDITION.  THE ACCESS COVER WAS REPLACED WITH A NEW ONE."]),
        ],
    },
    {
        "pid": "EZ0643", "name": "B 39", "county": "DURHAM", "quad": "SOUTHEAST DURHAM (2019)",
        "datum": "1986", "lat": "35 57 20.", "lon": "078 52 07.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 96.51, "height_decimals": 2, "height_source": "ADJ UNCH", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by differential leveling and",
                                      "was held unchanged in the adjustment."], NO_VERTICAL_CHECK],
        "marker": "DV", "setting": (38, "SET IN THE WALL OF A BUILDING"), "stamping": "B 39 1962",
        "logo": "NCGS",
        "history": [
            h("1962", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "ON THE SOUTH SIDE OF ALSTON AVENUE AT THE TOBACCO WAREHOUSE OF THE AMERICAN TOBACCO COMPANY, "
                "SET VERTICALLY IN THE NORTH BRICK WALL, 2 FEET ABOVE THE GROUND, 6 FEET EAST OF THE "
                "LOADING DOCK."]),
            h("20001130", "MARK NOT FOUND", "CITY OF DURHAM", "BLK", [
                "THE WAREHOUSE HAS BEEN RENOVATED AS OFFICES AND THE WALL REFACED.  MARK NOT FOUND."]),
        ],
    },
    {
        "pid": "EZ0650", "name": "T 207 RESET 1975", "county": "DURHAM", "quad": "NORTHEAST DURHAM (2019)",
        "datum": "1986", "lat": "36 03 10.", "lon": "078 51 35.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 123.09, "height_decimals": 2, "height_source": "RESET", "vert_order": ("SECOND", "II"),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by a short level line from",
                                      "the old mark when it was reset."]],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "T 207 RESET 1975",
        "logo": "NCSHC", "stability": "C",
        "history": [
            h("1975", "MONUMENTED", "NORTH CAROLINA STATE HIGHWAY COMMISSION", "HJW", [
                "RESET FROM T 207 1934, WHICH WAS IN THE PATH OF THE NEW ROXBORO ROAD INTERCHANGE.  THE NEW "
                "MARK IS 75 FEET NORTHEAST OF THE NORTHEAST END OF THE BRIDGE OVER THE ENO RIVER, 40 FEET EAST "
                "OF THE CENTER OF THE ROAD."]),
            h("19980525", "GOOD", "NORTH CAROLINA DEPARTMENT OF TRANSPORTATION", "RLW", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "FY0880", "name": "TT 12 S", "county": "ORANGE", "quad": "EFLAND (2019)",
        "datum": "1986", "lat": "36 05 13.", "lon": "079 12 38.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 196.92, "height_decimals": 2, "height_source": "N HEIGHT", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by the US Geological Survey",
                                      "with third-order leveling."]],
        "marker": "DT", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "TT 12 S 1948",
        "logo": "USGS",
        "history": [
            h("1948", "MONUMENTED", "US GEOLOGICAL SURVEY", "RJK", [
                "AT EFLAND, AT THE CROSSING OF THE NORFOLK SOUTHERN RAILWAY AND MT. WILLING ROAD, 30 FEET "
                "SOUTH OF THE TRACK AND 25 FEET WEST OF THE CENTER OF THE ROAD, IN THE TOP OF A CONCRETE "
                "POST."]),
            h("19880614", "GOOD", "US POWER SQUADRON", "MCB", ["RECOVERED IN GOOD CONDITION."]),
        ],
    },
    {
        "pid": "FY0881", "name": "X 122", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "datum": "1986", "lat": "36 06 41.", "lon": "079 06 02.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 189.46, "height_decimals": 2, "height_source": "POSTED", "vert_order": "POSTED",
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was held fixed from a posted value after the",
                                      "mark was found disturbed.  See the recovery note of 1991."]],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "X 122 1958",
        "logo": "CCO",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "3.4 MILES NORTH ALONG STATE HIGHWAY 86 FROM THE COURTHOUSE AT HILLSBOROUGH, AT THE "
                "ENTRANCE TO THE CEDAR RIDGE HIGH SCHOOL ROAD, 35 FEET EAST OF THE CENTER OF THE HIGHWAY."]),
            h("19910703", "POOR", "NORTH CAROLINA GEODETIC SURVEY", "DRM", [
                "MARK FOUND DISTURBED BY GRADING.  THE HEIGHT OF 1958 IS POSTED AND SHOULD NOT BE USED."]),
        ],
    },
    {
        "pid": "EZ0655", "name": "ENO", "county": "DURHAM", "quad": "NORTHWEST DURHAM (2019)",
        "datum": "1986", "lat": "36 04 20.", "lon": "078 57 43.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 128.9, "height_decimals": 2, "height_source": "VERTCON", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_SCALED, ["The NAVD 88 height was computed by applying the VERTCON shift value to",
                                      "the NGVD 29 height (displayed under superseded control)."]],
        "superseded": ["NGVD 29 (??/??/34)"],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "ENO 1934",
        "logo": "CCO",
        "history": [
            h("1934", "MONUMENTED", "COASTAL CONTROL OFFICE", "AMS", [
                "AT THE OLD ENO MILL DAM, ON THE NORTH BANK OF THE ENO RIVER, IN THE TOP OF THE NORTH "
                "ABUTMENT OF THE DAM."]),
            h("20140419", "GOOD", "ENO RIVER ENGINEERING", "SDW", [
                "RECOVERED IN GOOD CONDITION IN THE ENO RIVER STATE PARK, 150 FEET DOWNSTREAM OF THE "
                "FOOTBRIDGE AT FEW'S FORD."]),
        ],
    },
    {
        "pid": "FY0890", "name": "C 124", "county": "ORANGE", "quad": "EFLAND (2019)",
        "datum": "1986", "lat": "36 04 58.", "lon": "079 09 21.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 179.866, "vert_order": ("FIRST", "II"), "dynamic": True,
        "notes": [HORIZONTAL_SCALED, ORTHO_LEVELING_1991, GEOID_NOTE, DYNAMIC_NOTE, GRAVITY_NOTE],
        "superseded": ["NGVD 29 (07/15/91)"],
        "marker": "SQ", "setting": (36, "SET IN A MASSIVE STRUCTURE"), "sp_set": "CONCRETE BRIDGE ABUTMENT",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "A CHISELED SQUARE ON THE TOP OF THE SOUTHWEST WINGWALL OF THE BRIDGE OF U.S. HIGHWAY 70 "
                "OVER SEVEN MILE CREEK, 2.2 MILES WEST OF HILLSBOROUGH."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "FY0892", "name": "D 124", "county": "ORANGE", "quad": "EFLAND (2019)",
        "datum": "1986", "lat": "36 05 36.", "lon": "079 11 14.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 192.33, "height_decimals": 2, "height_source": "LEVELING", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by third-order leveling from",
                                      "bench mark C 124."]],
        "marker": "B", "setting": (38, "SET IN THE WALL OF A BUILDING"), "stamping": "",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "A COPPER BOLT SET HORIZONTALLY IN THE SOUTH FOUNDATION WALL OF THE EFLAND VOLUNTEER FIRE "
                "DEPARTMENT, 1 FOOT ABOVE THE GROUND."]),
            h("19880614", "GOOD", "US POWER SQUADRON", "MCB", ["FOUND AS DESCRIBED."]),
        ],
    },
    # --- GPS marks with both orders -------------------------------------------------------------
    {
        "pid": "DH7190", "name": "ORANGE GPS 1", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "classes": ["HT_MOD"],
        "datum": "2011", "lat": "36 05 02.71336", "lon": "079 04 49.18257", "height": 171.204,
        "height_source": "ADJUSTED", "epoch": "2010.00", "ellip": ("06/??/12", "GPS OBS"),
        "accuracy": (0.62, 0.49, 1.10), "local_accuracy": (0.58, 0.44, 1.02),
        "horz_order": "B", "vert_order": ("FIRST", "II"), "ellp_order": ("FOURTH", "I"), "dynamic": True,
        "notes": [ADJUSTED_BY_OCO, ORTHO_LEVELING_1991, ELLIPSOIDAL_NAD83, GEOID_NOTE, DYNAMIC_NOTE],
        "box": [("DH7191", "ORANGE GPS 1 AZ MK", 412.667, "2654410.1"), "FY0871"],
        "superseded": ["2007", "1986", "NGVD 29 (07/15/91)"],
        "marker": "F", "setting": (59, "STAINLESS STEEL ROD IN SLEEVE (10 FT.+)"),
        "stamping": "ORANGE GPS 1 1998", "logo": "NCGS", "projection": "RECESSED 8 CENTIMETERS",
        "magnetic": "I", "rod_depth": "18.3 meters", "sleeve_depth": "0.9 meters", "stability": "A",
        "satellite": (True, "June 05, 2012"),
        "history": [
            h("19980422", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "DRM", [
                "IN THE ORANGE COUNTY PUBLIC WORKS YARD ON VALLEY FORGE ROAD, 1.8 MILES NORTHEAST OF THE "
                "COURTHOUSE IN HILLSBOROUGH, 60 FEET NORTH OF THE GATE AND 15 FEET EAST OF THE FENCE, IN A "
                "LOGO CAP WITH ACCESS COVER."]),
            h("20120605", "GOOD", "ORBIS CONTROL OFFICE", "TLS", [
                "RECOVERED IN GOOD CONDITION.  OCCUPIED WITH GPS FOR 3 SESSIONS OF 5 HOURS."]),
            h("20190218", "GOOD", "ORANGE COUNTY LAND RECORDS", "CAS", ["RECOVERED AS DESCRIBED."]),
        ],
        "photo": True, "sketch": True,
    },
    {
        "pid": "DH7195", "name": "BINGHAM", "county": "ORANGE", "quad": "WHITE CROSS (2019)",
        "classes": ["HT_MOD"],
        "datum": "2011", "lat": "35 56 18.40125", "lon": "079 13 50.76633", "height": 185.372,
        "height_source": "GPS OBS", "epoch": "2010.00", "ellip": ("05/17/12", "GPS OBS"),
        "accuracy": (0.71, 0.55, 1.34), "horz_order": "B", "vert_order": ("SECOND", "II"),
        "ellp_order": ("FOURTH", "II"),
        "notes": [ADJUSTED_BY_OCO, ORTHO_GPS_2012, ELLIPSOIDAL_NAD83, GEOID_NOTE],
        "superseded": ["2007"],
        "marker": "DH", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "BINGHAM 2004",
        "logo": "NCGS", "magnetic": "N", "stability": "C", "satellite": (True, "20120517"),
        "history": [
            h("2004", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "KDF", [
                "IN THE BINGHAM VOLUNTEER FIRE DEPARTMENT LOT ON ORANGE GROVE ROAD, 40 FEET SOUTH OF THE "
                "STATION BUILDING AND 22 FEET WEST OF THE DRIVEWAY."]),
            h("20120517", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "KDF", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "DH7198", "name": "ROUGEMONT", "county": "DURHAM", "quad": "ROUGEMONT (2019)",
        "classes": ["CBN"],
        "datum": "NSRS2007", "lat": "36 12 46.55081", "lon": "078 54 41.30297", "height": 163.847,
        "height_source": "GPS OBS", "epoch": "2002.00", "ellip": ("08/14/06", "GPS OBS"),
        "accuracy": (0.94, 0.70, 1.96), "horz_order": "A", "vert_order": ("THIRD", "I"),
        "ellp_order": ("THIRD", "I"),
        "notes": [["The horizontal coordinates were established by GPS and adjusted by the ",
                   "North Carolina Geodetic Survey in February 2007."], ORTHO_GPS_2012, ELLIPSOIDAL_NAD83],
        "marker": "DH", "setting": (66, "SET IN BEDROCK"), "stamping": "ROUGEMONT 1995", "logo": "NCGS",
        "magnetic": "N", "stability": "A", "satellite": (True, "20060814"),
        "history": [
            h("1995", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "DRM", [
                "ON A GRANITE OUTCROP 300 FEET NORTH OF THE ROUGEMONT POST OFFICE AND 70 FEET EAST OF "
                "STATE HIGHWAY 157."]),
            h("20060814", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "KDF", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "DH7201", "name": "DUR 1991", "county": "DURHAM", "quad": "SOUTHEAST DURHAM (2019)",
        "classes": ["FBN"],
        "datum": "2011", "lat": "35 54 07.91248", "lon": "078 51 27.04411", "height": 104.660,
        "height_source": "ADJUSTED", "epoch": "2010.00", "ellip": ("09/23/11", "GPS OBS"),
        "accuracy": (0.41, 0.33, 0.87), "horz_order": "A", "vert_order": ("SECOND", "0"),
        "ellp_order": ("FOURTH", "I"), "dynamic": True,
        "notes": [ADJUSTED_BY_OCO, ORTHO_LEVELING_1991, ELLIPSOIDAL_NAD83, GEOID_NOTE],
        "superseded": ["2007", "1993", "NGVD 29 (07/15/91)"],
        "marker": "DH", "setting": (36, "SET IN A MASSIVE STRUCTURE"), "sp_set": "CONCRETE PIER",
        "stamping": "DUR 1991", "logo": "OCO", "magnetic": "N", "stability": "B",
        "satellite": (True, "20110923"),
        "history": [
            h("1991", "MONUMENTED", "ORBIS CONTROL OFFICE", "GEM", [
                "AT THE RESEARCH TRIANGLE PARK, ON THE GROUNDS OF THE STATE HIGHWAY PATROL STATION ON "
                "HOPSON ROAD, SET IN THE TOP OF A CONCRETE PIER PROJECTING 6 INCHES, 80 FEET SOUTH OF THE "
                "BUILDING."]),
            h("19960520", "GOOD", "ORBIS CONTROL OFFICE", "GEM", ["RECOVERED AS DESCRIBED."]),
            h("20110923", "GOOD", "ORBIS CONTROL OFFICE", "TLS", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    # --- a CORS ---------------------------------------------------------------------------------
    {
        "pid": "DL8724", "name": "CHAPEL HILL CORS ARP", "cors_id": "NCCH", "county": "ORANGE",
        "quad": "CHAPEL HILL (2019)", "classes": ["CORS"],
        "datum": "2011", "lat": "35 54 33.64612", "lon": "079 02 47.42905", "height": 168.02,
        "height_decimals": 2, "height_source": "GPS OBS", "epoch": "2010.00", "xyz": True,
        "ellip": ("05/01/12", "GPS OBS"), "accuracy": (0.31, 0.27, 0.65),
        "horz_order": "SPECIAL (CORS)", "ellp_order": ("SPECIAL (CORS)", ""),
        "notes": [["This is a SPECIAL STATUS position. See SPECIAL STATUS under the",
                   "DATUM ITEM on the data sheet items page."],
                  ADJUSTED_BY_OCO,
                  ["The PID for the CORS L1 Phase Center is DL8725."],
                  ["The XYZ, and position/ellipsoidal ht. are equivalent."],
                  ELLIPSOIDAL_NAD83, ORTHO_GPS_2012, GEOID_NOTE],
        "arp": True, "sp_set": "ANTENNA MOUNT ON BUILDING ROOF",
        "history": [
            h("20090301", "FIRST OBSERVED", "NORTH CAROLINA GEODETIC SURVEY", None,
              ["STATION IS A GPS CONTINUOUSLY OPERATING REFERENCE STATION ON THE ROOF OF THE VENABLE HALL "
               "ON THE CAMPUS OF THE UNIVERSITY OF NORTH CAROLINA.  THE ANTENNA IS ON A STEEL MOUNT BOLTED "
               "TO THE PARAPET."]),
        ],
    },
    # --- airport control ------------------------------------------------------------------------
    {
        "pid": "DH7203", "name": "IGX A", "county": "ORANGE", "quad": "CHAPEL HILL (2019)", "classes": ["PACS"],
        "datum": "2011", "lat": "35 56 07.25530", "lon": "079 03 55.10417", "height": 153.288,
        "height_source": "GPS OBS", "epoch": "2010.00", "ellip": ("04/11/12", "GPS OBS"),
        "accuracy": (0.95, 0.81, 1.77), "horz_order": "B", "vert_order": ("THIRD?", ""),
        "ellp_order": ("FOURTH", "I"),
        "notes": [ADJUSTED_BY_OCO, ORTHO_GPS_2012],
        "box": ["DH7204"],
        "marker": "DD", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "IGX A 2011",
        "logo": "OCO", "stability": "C", "satellite": (True, "20120411"),
        "history": [
            h("2011", "MONUMENTED", "ORBIS CONTROL OFFICE", "NKL", [
                "AT THE HORACE WILLIAMS AIRPORT, 180 FEET NORTH OF THE CENTERLINE OF RUNWAY 9-27 AND 350 "
                "FEET WEST OF THE TERMINAL BUILDING, IN A GRASS AREA."]),
            h("20190909", "DESTROYED", "UNIVERSITY OF NORTH CAROLINA", "KLS", [
                "THE AIRPORT WAS CLOSED IN 2018 AND THE SITE GRADED FOR CONSTRUCTION.  THE MONUMENT WAS "
                "REMOVED DURING GRADING."]),
        ],
    },
    {
        "pid": "DH7204", "name": "IGX B", "county": "ORANGE", "quad": "CHAPEL HILL (2019)", "classes": ["SACS"],
        "datum": "2011", "lat": "35 56 09.70102", "lon": "079 03 19.55836", "height": 150.914,
        "height_source": "GPS OBS", "epoch": "2010.00", "ellip": ("04/11/12", "GPS OBS"),
        "accuracy": (1.10, 0.94, 2.03), "horz_order": "B", "ellp_order": ("FOURTH", "II"),
        "notes": [ADJUSTED_BY_OCO],
        "marker": "DD", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "IGX B 2011",
        "logo": "OCO", "satellite": (True, "20120411"),
        "history": [
            h("2011", "MONUMENTED", "ORBIS CONTROL OFFICE", "NKL", [
                "AT THE HORACE WILLIAMS AIRPORT, AT THE EAST END OF THE RUNWAY, 120 FEET SOUTH OF THE "
                "CENTERLINE AND 60 FEET EAST OF THE RUNWAY END."]),
            h("20190909", "DESTROYED", "UNIVERSITY OF NORTH CAROLINA", "KLS", ["REMOVED DURING GRADING."]),
        ],
    },
    # --- hand-held and scaled positions ---------------------------------------------------------
    {
        "pid": "FY0895", "name": "OCCONEECHEE", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "datum": "1986", "lat": "36 04 02.3", "lon": "079 06 51.8", "pos_source": "HD_HELD1", "pos_decimals": 1,
        "height": 170.402, "vert_order": ("SECOND", "0"),
        "notes": [HAND_HELD_1, ORTHO_LEVELING_1991],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "OCCONEECHEE 1958",
        "logo": "CCO",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "AT THE NORTH END OF THE OCCONEECHEE SPEEDWAY ROAD, 25 FEET WEST OF THE GATE, IN THE TOP OF "
                "A CONCRETE POST PROJECTING 4 INCHES."]),
            h("20070930", "GOOD", "GEOCACHING", "BWT", [
                "FOUND IN GOOD CONDITION.  HAND-HELD GPS POSITION TAKEN AT THE MARK."]),
        ],
        "photo": True,
    },
    {
        "pid": "FY0896", "name": "R 123", "county": "ORANGE", "quad": "HILLSBOROUGH (2019)",
        "datum": "1986", "lat": "36 04 48.6", "lon": "079 05 21.0", "pos_source": "HD_HELD2", "pos_decimals": 1,
        "height": 176.559, "vert_order": ("FIRST", "II"),
        "notes": [HAND_HELD_2, ORTHO_LEVELING_1991],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "R 123 1958",
        "logo": "CCO", "stability": "C",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "1.1 MILES NORTHEAST ALONG U.S. HIGHWAY 70 BUSINESS FROM THE COURTHOUSE AT HILLSBOROUGH, 38 "
                "FEET SOUTH OF THE CENTER OF THE HIGHWAY, IN THE TOP OF A CONCRETE POST."]),
            h("20130412", "GOOD", "ORANGE COUNTY LAND RECORDS", "CAS", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "FY0897", "name": "S 123", "county": "ORANGE", "quad": "CALDWELL (2019)",
        "datum": "1986", "lat": "36 07 25.4", "lon": "079 04 11.7", "pos_source": "GPS HAND HELD 1",
        "pos_decimals": 1, "height": 201.218, "vert_order": ("FIRST", "II"),
        "notes": [HAND_HELD_1, ORTHO_LEVELING_1991],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "S 123 1958",
        "logo": "CCO",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "4.6 MILES NORTHEAST ALONG U.S. HIGHWAY 70 BUSINESS FROM THE COURTHOUSE AT HILLSBOROUGH, AT "
                "THE CROSSING OF THE OLD OXFORD ROAD, 30 FEET NORTH OF THE CENTER OF THE HIGHWAY."]),
            h("20090727", "SEE DESCRIPTION", "GEOCACHING", "JMH", [
                "FOUND THE POST BROKEN OFF AT THE GROUND AND LYING IN THE DITCH WITH THE DISK STILL "
                "ATTACHED.  THE MARK HAS MOVED AND ITS HEIGHT IS NO LONGER VALID."]),
        ],
    },
    {
        "pid": "FY0898", "name": "T 123", "county": "ORANGE", "quad": "CALDWELL (2019)",
        "datum": "1986", "lat": "36 08 44.9", "lon": "079 03 02.2", "pos_source": "GPS HAND HELD 2",
        "pos_decimals": 1, "height": 207.773, "vert_order": ("FIRST", "II"),
        "notes": [HAND_HELD_2, ORTHO_LEVELING_1991],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "T 123 1958",
        "logo": "CCO",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "6.3 MILES NORTHEAST ALONG U.S. HIGHWAY 70 BUSINESS FROM THE COURTHOUSE AT HILLSBOROUGH, AT "
                "THE ENTRANCE TO A FARM LANE, 32 FEET SOUTH OF THE CENTER OF THE HIGHWAY."]),
            h("20130412", "GOOD", "ORANGE COUNTY LAND RECORDS", "CAS", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "FY0899", "name": "V 123", "county": "ORANGE", "quad": "CALDWELL (2019)",
        "datum": "1986", "lat": "36 10 02.", "lon": "079 01 45.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 199.64, "height_decimals": 2, "height_source": "READJUST", "vert_order": ("SECOND", "II"),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was readjusted after the leveling of 1976."]],
        "marker": "DB", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "V 123 1958",
        "logo": "CCO",
        "history": [
            h("1958", "MONUMENTED", "COASTAL CONTROL OFFICE", "LFA", [
                "8.0 MILES NORTHEAST ALONG U.S. HIGHWAY 70 BUSINESS FROM THE COURTHOUSE AT HILLSBOROUGH, "
                "AT A CHURCH, 40 FEET NORTH OF THE CENTER OF THE HIGHWAY."]),
            h("1976", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "JTB", ["RECOVERED AS DESCRIBED."]),
            h("20180604", "NOT RECOVERED", "GEOCACHING", "PFF", [
                "SEARCHED THE AREA OF THE CHURCH ENTRANCE WITH A PROBE.  NOT FOUND."]),
        ],
    },
    # --- neighbouring counties ------------------------------------------------------------------
    {
        "pid": "EZ4410", "name": "NEW HOPE", "county": "CHATHAM", "quad": "FARRINGTON (2019)",
        "datum": "2001", "lat": "35 47 30.11428", "lon": "079 01 08.33015", "height": 88.214,
        "height_source": "COMPUTED", "horz_order": "SECOND", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_CLASSICAL_2005,
                  ["The orthometric height was computed from trigonometric leveling."]],
        "box": [("EZ4411", "NEW HOPE RM 1", 30.480, "0321515.0"), ("EZ4412", "NEW HOPE RM 2", 27.432, "1332007.5")],
        "superseded": ["1986", "NAD 27"],
        "marker": "DS", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"), "stamping": "NEW HOPE 1967",
        "logo": "USACE", "stability": "C",
        "history": [
            h("1967", "MONUMENTED", "US ARMY CORPS OF ENGINEERS", "EWP", [
                "ON THE EAST SIDE OF THE NEW HOPE RIVER VALLEY, ABOUT 1 MILE NORTH OF THE B. EVERETT JORDAN "
                "DAM SITE, ON THE CREST OF A WOODED RIDGE."]),
            h("1982", "GOOD", "US ARMY CORPS OF ENGINEERS", "EWP", [
                "RECOVERED IN GOOD CONDITION.  THE LAKE NOW COVERS THE VALLEY WEST OF THE STATION."]),
        ],
    },
    {
        "pid": "EZ4420", "name": "PITTSBORO COURTHOUSE CUPOLA", "county": "CHATHAM", "quad": "PITTSBORO (2019)",
        "datum": "1986", "lat": "35 43 13.48550", "lon": "079 10 39.27033", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "marker": "43",
        "history": [
            h("1933", "FIRST OBSERVED", "COASTAL CONTROL OFFICE", "RDH", [
                "THE STATION IS THE CENTER OF THE CUPOLA OF THE CHATHAM COUNTY COURTHOUSE IN THE TRAFFIC "
                "CIRCLE AT THE CENTER OF PITTSBORO."]),
            h("20100325", "DESTROYED", "NORTH CAROLINA GEODETIC SURVEY"),
        ],
    },
    {
        "pid": "FX2201", "name": "NC VA BDRY MON 77", "county": "PERSON", "quad": "ROXBORO (2019)",
        "datum": "2001", "lat": "36 32 29.80114", "lon": "078 58 12.09952", "height": 158.8,
        "height_decimals": 1, "height_source": "GPS OBS", "horz_order": "THIRD",
        "notes": [["The horizontal coordinates were established by GPS and adjusted by the ",
                   "North Carolina Geodetic Survey in March 2003."]],
        "marker": "71", "setting": (7, "SET IN TOP OF CONCRETE MONUMENT"),
        "stamping": "NC VA BOUNDARY 77 1887", "stability": "B",
        "history": [
            h("1887", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", None, [
                "A GRANITE POST 8 INCHES SQUARE MARKING THE BOUNDARY BETWEEN NORTH CAROLINA AND VIRGINIA, "
                "LETTERED N.C. ON THE SOUTH FACE AND VA. ON THE NORTH FACE, ABOUT 0.3 MILE EAST OF STATE "
                "ROAD 1322."]),
            h("20030315", "GOOD", "NORTH CAROLINA GEODETIC SURVEY", "KDF", [
                "RECOVERED IN GOOD CONDITION.  A DISK WAS SET IN A DRILL HOLE IN THE TOP OF THE POST AND "
                "OCCUPIED WITH GPS."]),
        ],
    },
    {
        "pid": "FX2215", "name": "YANCEYVILLE", "county": "CASWELL", "quad": "YANCEYVILLE (2019)",
        "datum": "1986", "lat": "36 24 16.", "lon": "079 20 14.", "pos_source": "SCALED", "pos_decimals": 0,
        "height": 185.95, "height_decimals": 2, "height_source": "U HEIGHT", "vert_order": ("THIRD", ""),
        "notes": [HORIZONTAL_SCALED, ["The orthometric height was determined by an unadjusted level line."]],
        "marker": "DB", "setting": (30, "SET IN A LIGHT STRUCTURE"), "sp_set": "CONCRETE STEPS",
        "stamping": "YANCEYVILLE 1962", "logo": "NCGS",
        "history": [
            h("1962", "MONUMENTED", "NORTH CAROLINA GEODETIC SURVEY", "WCF", [
                "IN YANCEYVILLE, AT THE CASWELL COUNTY COURTHOUSE, IN THE TOP OF THE EAST END OF THE LOWER "
                "STEP OF THE SOUTH ENTRANCE."]),
            h("20141008", "GOOD", "NORTH CAROLINA DEPARTMENT OF TRANSPORTATION", "RLW", ["RECOVERED AS DESCRIBED."]),
        ],
    },
    {
        "pid": "FX2230", "name": "CREEDMOOR WATER TANK", "county": "DURHAM", "quad": "NORTHEAST DURHAM (2019)",
        "datum": "1986", "lat": "36 08 03.11702", "lon": "078 48 47.05129", "horz_order": "THIRD",
        "notes": [HORIZONTAL_CLASSICAL_1986],
        "history": [
            h("1976", "FIRST OBSERVED", "NORTH CAROLINA GEODETIC SURVEY", "JTB", [
                "THE STATION IS THE CENTER OF A SPHERICAL STEEL WATER TANK ON FOUR LEGS, ABOUT 3 MILES "
                "SOUTHWEST OF CREEDMOOR, 100 FEET WEST OF OLD NC 75."]),
        ],
    },
]
