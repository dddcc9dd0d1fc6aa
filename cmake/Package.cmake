# What `cmake --install` leaves: libraries, headers (hand-written and generated alike), and the package FcConfig.
