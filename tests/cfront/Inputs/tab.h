extern const unsigned char table[];
