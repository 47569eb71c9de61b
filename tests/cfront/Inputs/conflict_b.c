extern long level;
int twice_defined(void)
{
    return 2;
}
