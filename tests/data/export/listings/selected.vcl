DESIGNATION                    PID     DATUM     LATITUDE     LONGITUDE    O C  NORTH M  EAST M    88-ELEV (METERS)   M G SET  REC C P S
OCCONEECHEE                    FY0895  88        36 04 02.3   079 06 51.8  2 0  257075   599297   170.402                 1958 2007G Y  

