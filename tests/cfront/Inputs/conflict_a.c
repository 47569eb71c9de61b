int twice_defined(void);
int level;

int twice_defined(void)
{
    return level;
}
