static int shared_state;
