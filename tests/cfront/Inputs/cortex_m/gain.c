const unsigned char sensor_gain[4] = {1, 2, 4, 8};
