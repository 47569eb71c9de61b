int sensor_sample(int channel);
