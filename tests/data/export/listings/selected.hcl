DESIGNATION                    PID     DATUM          LATITUDE        LONGITUDE        O  NORTH (M)   EAST (M)     M G SET  REC C P S

HILLSBORO                      FY3210  83(2001  )     36 03 42.56888  079 07 18.55999  1  256467.249  598626.165       1933 2004N Y Y
IGX B                          DH7204  83(2011  )     35 56 09.70102  079 03 19.55836  B  242504.236  604599.435     Y 2011 2019     
