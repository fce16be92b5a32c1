DESIGNATION                    PID     DATUM     LATITUDE     LONGITUDE    O C  NORTH FT EAST FT   88-ELEV (METERS)   M G SET  REC C P S

                                                                                                  200.123                 1934 2012G    
SAN PEDRO SPRINGS              XT2001  88        29 26 10     098 30 05    1 2  13706447  2127201  
